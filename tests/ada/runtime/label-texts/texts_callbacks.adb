with Probe; use Probe;

package body Texts_Callbacks is

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Listen;

   procedure Read_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer)
   is
      procedure Read (Name : String) is
         Label : constant XtR5.Widget := XtR5.NameToWidget (XtR5.Parent (W), Name);
      begin
         Say (Name & ": " & Compound (Label, "labelString")
              & ", alignment" & Enum (Label, "alignment")'Image);
      end Read;
   begin
      Read ("greeting");
      Read ("press");
      Read ("lines");
      Read ("nameless");
   end Read_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Quit;

end Texts_Callbacks;
