with XlibR5;
with XtR5;
with Xm1_2_2;
package m_uil is
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
  AppShell    : XtR5.Widget;
  Shells      : XtR5.WidgetList( 1 .. 3 );
  Child_Lists : array( 1 .. 3 ) of XtR5.WidgetList_Ptr;
  Child_Names : constant XlibR5.StringList := (
    1 => new String'( "Box" ), 
    2 => new String'( "Ask" ), 
    3 => new String'( "Bar" ) );
  Shell_Names : constant XlibR5.StringList := (
    1 => new String'( "Box_appl" ), 
    2 => new String'( "Ask_popup" ), 
    3 => new String'( "Bar_menu" ) );
  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
end m_uil;
