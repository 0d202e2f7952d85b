with Probe; use Probe;

package body Logo_Callbacks is

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) is
   begin
      Listen (W);
   end Ready_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) is
   begin
      Quit (W);
   end Quit_Cb;

end Logo_Callbacks;
