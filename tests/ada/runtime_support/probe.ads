--  What the programs of the runtime tests share: lines for the driver to compare, the driver's
--  questions answered, and a widget's resources read back.
--
--  The driver writes questions to the program's standard input, a line each: "where NAME" for the
--  widget's place on the screen, or "rest".  Both are answered on standard output, after "probe: ",
--  when the program has done everything there was to do and, for "where", the widget can be seen.

with XtR5;

package Probe is

   --  Prints a line at once.
   procedure Say (Line : String);

   --  A create callback: answers the driver's questions from now on.  W is any widget of the program,
   --  and more than one call does no harm.
   procedure Listen (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer);

   --  A callback that ends the main loop, and so the program.
   procedure Quit (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer);

   --  The texts in the client data of callbacks end with a NUL.
   function Plain (Text : String) return String;

   --  The text of a compound string without its tags, with "|" for separators.
   function Text_Of (Compound : XtR5.Pointer) return String;

   --  Resources by their C names without the "XmN".
   function Compound (W : XtR5.Widget; Resource : String) return String;
   function Number (W : XtR5.Widget; Resource : String) return Integer;
   function Size (W : XtR5.Widget; Resource : String) return Integer;
   function Enum (W : XtR5.Widget; Resource : String) return Integer;
   function Handle (W : XtR5.Widget; Resource : String) return XtR5.Widget;

end Probe;
