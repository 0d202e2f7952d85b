with XlibR5;
with XtR5;
with Xm1_2_2;
package m_uil is
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
  AppShell    : XtR5.Widget;
  Shells      : XtR5.WidgetList( 1 .. 7 );
  Child_Lists : array( 1 .. 7 ) of XtR5.WidgetList_Ptr;
  Child_Names : constant XlibR5.StringList := (
    1 => new String'( "m" ), 
    2 => new String'( "x" ), 
    3 => new String'( "f" ), 
    4 => new String'( "d" ), 
    5 => new String'( "g" ), 
    6 => new String'( "up" ), 
    7 => new String'( "s" ) );
  Shell_Names : constant XlibR5.StringList := (
    1 => new String'( "m_shell" ), 
    2 => new String'( "other" ), 
    3 => new String'( "m" ), 
    4 => new String'( "d_popup" ), 
    5 => new String'( "g_shell" ), 
    6 => new String'( "up_menu" ), 
    7 => new String'( "s_shell" ) );
  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
end m_uil;
