with Ada.Text_IO;
with limit;
with Screen;
with XtR5;

procedure Look is
   Shell   : XtR5.Widget;
   Widgets : XtR5.WidgetList_Ptr;
begin
   Screen.Open (Shell);
   Ada.Text_IO.Put_Line ("fetching");
   Ada.Text_IO.Flush;
   limit.Widgets.FetchWidget (Shell, "w", Widgets);
   Ada.Text_IO.Put_Line ("fetched" & Integer'Image (Widgets'Length) & " widgets");
end Look;
