with Probe; use Probe;
with Xm;

package body Keys_Callbacks is

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Listen;

   procedure Input_Cb (W : XtR5.Widget; Client_Data : String; Call_Data : XtR5.Pointer) is
      Button_Press : constant := 4;
      Data : Xm.AnyCallbackStruct
        with Import, Address => Call_Data;
   begin
      Say (XtR5.Name (W) & " " & Plain (Client_Data)
           & (if Data.Event.Kind = Button_Press then " a button" else " something else"));
   end Input_Cb;

   procedure Text_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) is
   begin
      Say (Xm.TextGetString (W));
   end Text_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Quit;

end Keys_Callbacks;
