with Parts;
with Probe; use Probe;

package body Parts_Callbacks is

   use type XtR5.Widget;

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Listen;

   procedure Read_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer)
   is
      Main : Parts.Widgets.Main_Parts renames Parts.Widgets.Main;
      Note : Parts.Widgets.Note_Parts renames Parts.Widgets.Note;
   begin
      Say (XtR5.Name (Main.Main) & " " & XtR5.Name (Main.Buttons) & " " & XtR5.Name (Main.Read)
           & " " & XtR5.Name (Main.Late_Comer) & " " & XtR5.Name (Main.Anon_XmSeparator_1)
           & " " & XtR5.Name (Main.Quit));
      Say ("it is me: " & Boolean'Image (Main.Read = W));
      Say (XtR5.Name (Note.Note) & " " & XtR5.Name (Note.Words));
   end Read_Cb;

   --  What was left out comes into the window, and a second window is made.
   procedure More_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer)
   is
      Before : constant XtR5.Widget := Parts.Widgets.Note.Words;
      Second : Parts.Widgets.Note_Parts;
   begin
      XtR5.ManageChild (Parts.Widgets.Main.Late_Comer);
      Second := Parts.Widgets.Create_Note (Parts.Widgets.AppShell);
      Say (XtR5.Name (Second.Words) & " of " & XtR5.Name (XtR5.Parent (Second.Words))
           & " is another: " & Boolean'Image (Second.Words /= Before));
   end More_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Quit;

end Parts_Callbacks;
