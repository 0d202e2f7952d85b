with Probe; use Probe;

package body Zoom_Callbacks is

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Listen;

   procedure Zoom_Cb (W : XtR5.Widget; Client_Data : Integer; Call_Data : XtR5.Pointer) is
   begin
      Say (XtR5.Name (W) & Client_Data'Image & ", mnemonic" & Number (W, "mnemonic")'Image);
   end Zoom_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Quit;

end Zoom_Callbacks;
