with XlibR5;
with XtR5;
with Xm1_2_2;
package my_mod_uil is
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
  AppShell    : XtR5.Widget;
  Shells      : XtR5.WidgetList( 1 .. 2 );
  Child_Lists : array( 1 .. 2 ) of XtR5.WidgetList_Ptr;
  Child_Names : constant XlibR5.StringList := (
    1 => new String'( "my_mod" ), 
    2 => new String'( "my_mod_callbacks" ) );
  Shell_Names : constant XlibR5.StringList := (
    1 => new String'( "my_mod_appl" ), 
    2 => new String'( "my_mod_callbacks_shell" ) );
  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
end my_mod_uil;
