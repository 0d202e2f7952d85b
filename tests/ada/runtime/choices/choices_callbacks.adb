with Probe; use Probe;
with Xm;

package body Choices_Callbacks is

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Listen;

   procedure Toggle_Cb (W : XtR5.Widget; Client_Data : Integer; Call_Data : XtR5.Pointer) is
   begin
      Say (XtR5.Name (W) & Client_Data'Image & " " & Xm.ToggleButtonGetState (W)'Image);
   end Toggle_Cb;

   procedure Scale_Cb (W : XtR5.Widget; Client_Data : Boolean; Call_Data : XtR5.Pointer) is
   begin
      Say (XtR5.Name (W) & Number (W, "value")'Image & " " & Client_Data'Image);
   end Scale_Cb;

   procedure Text_Cb (W : XtR5.Widget; Client_Data : String; Call_Data : XtR5.Pointer) is
   begin
      Say (XtR5.Name (W) & " " & Plain (Client_Data) & " " & Xm.TextFieldGetString (W));
   end Text_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Quit;

end Choices_Callbacks;
