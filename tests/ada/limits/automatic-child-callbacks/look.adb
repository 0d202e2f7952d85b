with limit;
with Screen;
with System;
with XtR5;

procedure Look is
   Shell   : XtR5.Widget;
   Widgets : XtR5.WidgetList_Ptr;

   procedure Push (Name : String) is
   begin
      XtR5.CallCallbacks
        (XtR5.NameToWidget (Widgets (Widgets'First), "*" & Name), "activateCallback",
         System.Null_Address);
   end Push;
begin
   Screen.Open (Shell);
   limit.Widgets.FetchWidget (Shell, "w", Widgets);
   Push ("OK");
   Push ("apply");
end Look;
