with XlibR5;
with XtR5;
with Xm1_2_2;
generic
  with function dialog(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
  with function menu(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
  with function menubar(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
  with function xdialog(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
  with function xmenu(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
  with function xmenubar(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
  with function make_dialog(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
  with function make_menu(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
  with function make_menubar(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
  with function dialogmenux(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
package m_uil is
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
  AppShell    : XtR5.Widget;
  Shells      : XtR5.WidgetList( 1 .. 10 );
  Child_Lists : array( 1 .. 10 ) of XtR5.WidgetList_Ptr;
  Child_Names : constant XlibR5.StringList := (
    1 => new String'( "w1" ), 
    2 => new String'( "w2" ), 
    3 => new String'( "w3" ), 
    4 => new String'( "w4" ), 
    5 => new String'( "w5" ), 
    6 => new String'( "w6" ), 
    7 => new String'( "w7" ), 
    8 => new String'( "w8" ), 
    9 => new String'( "w9" ), 
    10 => new String'( "w10" ) );
  Shell_Names : constant XlibR5.StringList := (
    1 => new String'( "w1_appl" ), 
    2 => new String'( "w2_shell" ), 
    3 => new String'( "w3_shell" ), 
    4 => new String'( "w4_popup" ), 
    5 => new String'( "w5_menu" ), 
    6 => new String'( "w6_menu" ), 
    7 => new String'( "w7_popup" ), 
    8 => new String'( "w8_menu" ), 
    9 => new String'( "w9_menu" ), 
    10 => new String'( "w10_shell" ) );
  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
end m_uil;
