with Probe; use Probe;
with Sure_Own;

package body Sure_Callbacks is

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) is
   begin
      Listen (W, Client_Data, Call_Data);
      Sure_Own.Self := W;
   end Ready_Cb;

   procedure Armed_Cb (W : XtR5.Widget; Client_Data : String; Call_Data : XtR5.Pointer) is
   begin
      Say (XtR5.Name (W) & " " & Plain (Client_Data));
   end Armed_Cb;

   procedure Answer_Cb (W : XtR5.Widget; Client_Data : String; Call_Data : XtR5.Pointer) is
   begin
      Say (XtR5.Name (W) & " " & Plain (Client_Data));
   end Answer_Cb;

   procedure Read_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer)
   is
      procedure Read (Button : String) is
         Child : constant XtR5.Widget := XtR5.NameToWidget (Sure_Own.Self, Button);
      begin
         Say (Button & ": " & Compound (Child, "labelString")
              & (if XtR5.IsSensitive (Child) then "" else ", insensitive"));
      end Read;
   begin
      Read ("OK");
      Read ("Cancel");
      Read ("Help");
   end Read_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Quit;

end Sure_Callbacks;
