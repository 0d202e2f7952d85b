with Ada.Text_IO;
with limit;
with Screen;
with XtR5;

procedure Look is
   Shell   : XtR5.Widget;
   Widgets : XtR5.WidgetList_Ptr;
   List    : XtR5.Widget;
begin
   Screen.Open (Shell);
   limit.Widgets.FetchWidget (Shell, "w", Widgets);
   XtR5.ManageChild (Widgets (Widgets'First));
   XtR5.RealizeWidget (Shell);
   --  The list's parent is the scrolled window, whose place the form decides.
   List := XtR5.NameToWidget (Widgets (Widgets'First), "*choices");
   Ada.Text_IO.Put_Line
     ("the list begins at" & Integer'Image (Screen.Position_Of (XtR5.Parent (List), "y")));
end Look;
