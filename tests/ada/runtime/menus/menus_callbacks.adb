with Probe; use Probe;
with Xm;

package body Menus_Callbacks is

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Listen;

   procedure Command_Cb (W : XtR5.Widget; Client_Data : String; Call_Data : XtR5.Pointer) is
   begin
      Say (XtR5.Name (W) & " " & Plain (Client_Data));
   end Command_Cb;

   procedure Wrap_Cb (W : XtR5.Widget; Client_Data : String; Call_Data : XtR5.Pointer) is
   begin
      Say (Plain (Client_Data) & " " & Xm.ToggleButtonGetState (W)'Image);
   end Wrap_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) is
   begin
      Say ("bye");
      Quit (W, Client_Data, Call_Data);
   end Quit_Cb;

end Menus_Callbacks;
