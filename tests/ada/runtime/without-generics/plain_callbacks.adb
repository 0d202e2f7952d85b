with Probe; use Probe;

package body Plain_Callbacks is

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Listen;

   function Make_Frame
     (Parent : XtR5.Widget; Name : String; Args : XtR5.ArgList; Nargs : XtR5.Int)
      return XtR5.Widget is
   begin
      return Xm1_2_2.CreateFrame (Parent, Name, Args, Nargs);
   end Make_Frame;

   procedure Count_Cb (W : XtR5.Widget; Client_Data : Integer; Call_Data : XtR5.Pointer) is
   begin
      Say (XtR5.Name (W) & Client_Data'Image & " in " & XtR5.Name (XtR5.Parent (W))
           & Enum (XtR5.Parent (W), "shadowType")'Image);
   end Count_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Quit;

end Plain_Callbacks;
