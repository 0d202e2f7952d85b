with XlibR5;
with XtR5;
with Xm1_2_2;
package my_mod_uil is
  type top_rec is record
    top : XtR5.Widget := XtR5.XtNULL;
    a__b : XtR5.Widget := XtR5.XtNULL;
    x___y : XtR5.Widget := XtR5.XtNULL;
     : XtR5.Widget := XtR5.XtNULL;
    _ : XtR5.Widget := XtR5.XtNULL;
    1x : XtR5.Widget := XtR5.XtNULL;
    b_c : XtR5.Widget := XtR5.XtNULL;
    d__e : XtR5.Widget := XtR5.XtNULL;
    f : XtR5.Widget := XtR5.XtNULL;
    g : XtR5.Widget := XtR5.XtNULL;
    _h : XtR5.Widget := XtR5.XtNULL;
    ij : XtR5.Widget := XtR5.XtNULL;
    k__l : XtR5.Widget := XtR5.XtNULL;
  end record;
  top : top_rec;
  function Create_top( parent : in XtR5.Widget )
    return top_rec;
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
  AppShell    : XtR5.Widget;
  Shells      : XtR5.WidgetList( 1 .. 1 );
  Child_Lists : array( 1 .. 1 ) of XtR5.WidgetList_Ptr;
  Child_Names : constant XlibR5.StringList := (
    1 => new String'( "Top$" ) );
  Shell_Names : constant XlibR5.StringList := (
    1 => new String'( "Top$_appl" ) );
  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
end my_mod_uil;
