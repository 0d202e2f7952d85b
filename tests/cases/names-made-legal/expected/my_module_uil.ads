with XlibR5;
with XtR5;
with Xm1_2_2;
generic
  with function make_it(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
package my_module_uil is
  type top_form_rec is record
    top_form : XtR5.Widget := XtR5.XtNULL;
    ok_button : XtR5.Widget := XtR5.XtNULL;
    my_widget_1 : XtR5.Widget := XtR5.XtNULL;
    a_b : XtR5.Widget := XtR5.XtNULL;
    a__b : XtR5.Widget := XtR5.XtNULL;
    x_y : XtR5.Widget := XtR5.XtNULL;
    _ab : XtR5.Widget := XtR5.XtNULL;
    ab : XtR5.Widget := XtR5.XtNULL;
     : XtR5.Widget := XtR5.XtNULL;
    upper : XtR5.Widget := XtR5.XtNULL;
    made : XtR5.Widget := XtR5.XtNULL;
  end record;
  top_form : top_form_rec;
  function Create_top_form( parent : in XtR5.Widget )
    return top_form_rec;
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
  AppShell    : XtR5.Widget;
  Shells      : XtR5.WidgetList( 1 .. 1 );
  Child_Lists : array( 1 .. 1 ) of XtR5.WidgetList_Ptr;
  Child_Names : constant XlibR5.StringList := (
    1 => new String'( "Top$Form" ) );
  Shell_Names : constant XlibR5.StringList := (
    1 => new String'( "Top$Form_appl" ) );
  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
end my_module_uil;
