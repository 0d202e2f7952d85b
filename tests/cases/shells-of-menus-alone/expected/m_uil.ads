with XlibR5;
with XtR5;
with Xm1_2_2;
package m_uil is
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
  AppShell    : XtR5.Widget;
  Shells      : XtR5.WidgetList( 1 .. 4 );
  Child_Lists : array( 1 .. 4 ) of XtR5.WidgetList_Ptr;
  Child_Names : constant XlibR5.StringList := (
    1 => new String'( "bar" ), 
    2 => new String'( "up" ), 
    3 => new String'( "down" ), 
    4 => new String'( "option" ) );
  Shell_Names : constant XlibR5.StringList := (
    1 => new String'( "bar_menu" ), 
    2 => new String'( "up_menu" ), 
    3 => new String'( "down_menu" ), 
    4 => new String'( "option_menu" ) );
  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
end m_uil;
