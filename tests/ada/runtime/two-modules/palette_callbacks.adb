with Editor;
with Probe; use Probe;

package body Palette_Callbacks is

   --  No window manager is there to keep the two windows apart.
   procedure Place_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer)
   is
      Args : XtR5.ArgList (1 .. 2);
   begin
      XtR5.SetArg (Args (1), "x", Integer'(300));
      XtR5.SetArg (Args (2), "y", Integer'(100));
      XtR5.SetValues (XtR5.Parent (W), Args, 2);
      Say ("placed");
   end Place_Cb;

   procedure Paint_Cb (W : XtR5.Widget; Client_Data : Integer; Call_Data : XtR5.Pointer) is
   begin
      Say ("painted" & Client_Data'Image & " in " & XtR5.Name (XtR5.Parent (XtR5.Parent (W)))
           & ", not in " & Editor.Widgets.Child_Name);
   end Paint_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Quit;

end Palette_Callbacks;
