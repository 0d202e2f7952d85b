--  What the programs of this folder share: a shell, and looks at a widget's resources.

with XtR5;

package Screen is

   procedure Open (Shell : out XtR5.Widget);

   --  The value of a resource of these types.
   function Dimension_Of (W : XtR5.Widget; Resource : String) return Integer;
   function Position_Of (W : XtR5.Widget; Resource : String) return Integer;
   function Enum_Of (W : XtR5.Widget; Resource : String) return Integer;

end Screen;
