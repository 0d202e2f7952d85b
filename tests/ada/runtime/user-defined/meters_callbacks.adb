with Probe; use Probe;
with Xmdef;

package body Meters_Callbacks is

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Listen;

   --  A lying scale that shows its value and is as long as it takes to tell left from right.
   function Make_Meter
     (Parent : XtR5.Widget; Name : String; Args : XtR5.ArgList; Nargs : XtR5.Int)
      return XtR5.Widget
   is
      All_Args : XtR5.ArgList (1 .. Nargs + 3);
   begin
      Say ("making " & Name & " with" & Nargs'Image);
      All_Args (1 .. Nargs) := Args (1 .. Nargs);
      XtR5.SetArg (All_Args (Nargs + 1), Xmdef.NshowValue, True);
      XtR5.SetArg (All_Args (Nargs + 2), Xmdef.NscaleWidth, Integer'(200));
      XtR5.SetArg (All_Args (Nargs + 3), Xmdef.Norientation, Integer'(Xm1_2_2.HORIZONTAL));
      return Xm1_2_2.CreateScale (Parent, Name, All_Args, Nargs + 3);
   end Make_Meter;

   procedure Moved_Cb (W : XtR5.Widget; Client_Data : Integer; Call_Data : XtR5.Pointer) is
   begin
      Say (XtR5.Name (W) & Client_Data'Image & " is at" & Number (W, "value")'Image);
   end Moved_Cb;

   procedure Read_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer)
   is
      procedure Read (Name : String) is
         Meter : constant XtR5.Widget := XtR5.NameToWidget (XtR5.Parent (W), Name);
      begin
         Say (Name & Number (Meter, "minimum")'Image & " .." & Number (Meter, "maximum")'Image
              & " at" & Number (Meter, "value")'Image);
      end Read;
   begin
      Read ("left");
      Read ("right");
   end Read_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Quit;

end Meters_Callbacks;
