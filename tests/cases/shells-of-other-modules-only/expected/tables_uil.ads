with XlibR5;
with XtR5;
with Xm1_2_2;
package tables_uil is
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
  AppShell    : XtR5.Widget;
  Shells      : XtR5.WidgetList( 1 .. 4 );
  Child_Lists : array( 1 .. 4 ) of XtR5.WidgetList_Ptr;
  Child_Names : constant XlibR5.StringList := (
    1 => new String'( "far" ), 
    2 => new String'( "Here" ), 
    3 => new String'( "tables" ), 
    4 => new String'( "tables" ) );
  Shell_Names : constant XlibR5.StringList := (
    1 => new String'( "away" ), 
    2 => new String'( "here_shell" ), 
    3 => new String'( "tables_menu" ), 
    4 => new String'( "far" ) );
  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
end tables_uil;
