with Probe; use Probe;
with Xm;

package body Births_Callbacks is

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Listen;

   procedure Born_Cb (W : XtR5.Widget; Client_Data : String; Call_Data : XtR5.Pointer) is
      Reason : Xm.AnyCallbackStruct
        with Import, Address => Call_Data;
   begin
      Say (XtR5.Name (W) & ", " & Plain (Client_Data) & ", under "
           & XtR5.Name (XtR5.Parent (W))
           & (if Reason.Reason = Xm1_2_2.CR_CREATE then "" else ": another reason"));
   end Born_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer)
   is
      Hidden : constant XtR5.Widget := XtR5.NameToWidget (XtR5.Parent (W), "hidden");
   begin
      Say ("managed are " & XtR5.Name (W) & ": " & XtR5.IsManaged (W)'Image & ", hidden: "
           & XtR5.IsManaged (Hidden)'Image);
      Quit (W, Client_Data, Call_Data);
   end Quit_Cb;

end Births_Callbacks;
