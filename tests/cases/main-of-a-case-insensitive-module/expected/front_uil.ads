with XlibR5;
with XtR5;
with Xm1_2_2;
package front_uil is
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
  AppShell    : XtR5.Widget;
  Shells      : XtR5.WidgetList( 1 .. 5 );
  Child_Lists : array( 1 .. 5 ) of XtR5.WidgetList_Ptr;
  Child_Names : constant XlibR5.StringList := (
    1 => new String'( "MAIN" ), 
    2 => new String'( "elsewhere" ), 
    3 => new String'( "Ask" ), 
    4 => new String'( "Other" ), 
    5 => new String'( "Late" ) );
  Shell_Names : constant XlibR5.StringList := (
    1 => new String'( "front" ), 
    2 => new String'( "front" ), 
    3 => new String'( "Ask_popup" ), 
    4 => new String'( "Other_shell" ), 
    5 => new String'( "Late_shell" ) );
  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
end front_uil;
