with XlibR5;
with XtR5;
with Xm1_2_2;
package m_uil is
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
  Shells      : XtR5.WidgetList( 1 .. 0 );
  Child_Lists : array( 1 .. 0 ) of XtR5.WidgetList_Ptr;
  Child_Names : XlibR5.StringList ( 1 .. 0 );
  Shell_Names : XlibR5.StringList ( 1 .. 0 );
  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
end m_uil;
