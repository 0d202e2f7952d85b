with Ada.Text_IO;
with limit;
with Screen;
with XtR5;

procedure Look is
   Shell   : XtR5.Widget;
   Widgets : XtR5.WidgetList_Ptr;
begin
   Screen.Open (Shell);
   limit.Widgets.FetchWidget (Shell, "w", Widgets);
   Ada.Text_IO.Put_Line
     ("XmNdefaultButtonType" &
      Integer'Image (Screen.Enum_Of (Widgets (Widgets'First), "defaultButtonType")));
end Look;
