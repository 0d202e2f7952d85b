with XlibR5;
with XtR5;
with Xm1_2_2;
generic
  with function make_p_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
package m_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_uil is
  type top_rrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrr is record
    top : XtR5.Widget := XtR5.XtNULL;
    w_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9_x9 : XtR5.Widget := XtR5.XtNULL;
    anon_make_p_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_y8_1 : XtR5.Widget := XtR5.XtNULL;
  end record;
  top : top_rrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrr;
  function Create_top( parent : in XtR5.Widget )
    return top_rrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrrr;
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
  AppShell    : XtR5.Widget;
  Shells      : XtR5.WidgetList( 1 .. 3 );
  Child_Lists : array( 1 .. 3 ) of XtR5.WidgetList_Ptr;
  Child_Names : constant XlibR5.StringList := (
    1 => new String'( "child" ), 
    2 => new String'( "again" ), 
    3 => new String'( "top" ) );
  Shell_Names : constant XlibR5.StringList := (
    1 => new String'( "s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s" ), 
    2 => new String'( "s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%ss-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s-%s" ), 
    3 => new String'( "top_shell" ) );
  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
end m_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_z7_uil;
