with XlibR5;
with XtR5;
with Xm1_2_2;
package dialogs_uil is
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
  AppShell    : XtR5.Widget;
  Shells      : XtR5.WidgetList( 1 .. 7 );
  Child_Lists : array( 1 .. 7 ) of XtR5.WidgetList_Ptr;
  Child_Names : constant XlibR5.StringList := (
    1 => new String'( "launcher" ), 
    2 => new String'( "saved_dialog" ), 
    3 => new String'( "discard_dialog" ), 
    4 => new String'( "rename_dialog" ), 
    5 => new String'( "choose_dialog" ), 
    6 => new String'( "print_dialog" ), 
    7 => new String'( "working_dialog" ) );
  Shell_Names : constant XlibR5.StringList := (
    1 => new String'( "launcher_appl" ), 
    2 => new String'( "saved_dialog_popup" ), 
    3 => new String'( "discard_dialog_popup" ), 
    4 => new String'( "rename_dialog_popup" ), 
    5 => new String'( "choose_dialog_popup" ), 
    6 => new String'( "print_dialog_popup" ), 
    7 => new String'( "working_dialog_popup" ) );
  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
end dialogs_uil;
