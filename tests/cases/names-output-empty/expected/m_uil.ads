with XlibR5;
with XtR5;
with Xm1_2_2;
package m_uil is
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
  AppShell    : XtR5.Widget;
  Shells      : XtR5.WidgetList( 1 .. 1 );
  Child_Lists : array( 1 .. 1 ) of XtR5.WidgetList_Ptr;
  Child_Names : constant XlibR5.StringList := (
    1 => new String'( "f" ) );
  Shell_Names : constant XlibR5.StringList := (
    1 => new String'( "f_appl" ) );
  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
end m_uil;
