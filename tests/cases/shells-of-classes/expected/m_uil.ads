with XlibR5;
with XtR5;
with Xm1_2_2;
package m_uil is
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
  AppShell    : XtR5.Widget;
  Shells      : XtR5.WidgetList( 1 .. 9 );
  Child_Lists : array( 1 .. 9 ) of XtR5.WidgetList_Ptr;
  Child_Names : constant XlibR5.StringList := (
    1 => new String'( "window" ), 
    2 => new String'( "form" ), 
    3 => new String'( "form_dialog" ), 
    4 => new String'( "failure" ), 
    5 => new String'( "pulldown" ), 
    6 => new String'( "popup" ), 
    7 => new String'( "option" ), 
    8 => new String'( "bar" ), 
    9 => new String'( "column" ) );
  Shell_Names : constant XlibR5.StringList := (
    1 => new String'( "window_appl" ), 
    2 => new String'( "form_shell" ), 
    3 => new String'( "form_dialog_popup" ), 
    4 => new String'( "failure_popup" ), 
    5 => new String'( "pulldown_menu" ), 
    6 => new String'( "popup_menu" ), 
    7 => new String'( "option_menu" ), 
    8 => new String'( "bar_menu" ), 
    9 => new String'( "column_shell" ) );
  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
end m_uil;
