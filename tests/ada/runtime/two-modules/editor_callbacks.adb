with Probe; use Probe;

package body Editor_Callbacks is

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Listen;

   procedure Save_Cb (W : XtR5.Widget; Client_Data : Integer; Call_Data : XtR5.Pointer) is
   begin
      Say ("saved" & Client_Data'Image);
   end Save_Cb;

end Editor_Callbacks;
