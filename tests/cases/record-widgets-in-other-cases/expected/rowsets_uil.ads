with XlibR5;
with XtR5;
with Xm1_2_2;
package rowsets_uil is
  type main_Rec is record
    main : XtR5.Widget := XtR5.XtNULL;
    row_one : XtR5.Widget := XtR5.XtNULL;
    cell : XtR5.Widget := XtR5.XtNULL;
    anon_xmlabel_1 : XtR5.Widget := XtR5.XtNULL;
    anon_xmframe_2 : XtR5.Widget := XtR5.XtNULL;
  end record;
  main : main_Rec;
  function Create_main( parent : in XtR5.Widget )
    return main_Rec;
  type aside_Rec is record
    aside : XtR5.Widget := XtR5.XtNULL;
    area : XtR5.Widget := XtR5.XtNULL;
  end record;
  aside : aside_Rec;
  function Create_aside( parent : in XtR5.Widget )
    return aside_Rec;
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
  AppShell    : XtR5.Widget;
  Shells      : XtR5.WidgetList( 1 .. 2 );
  Child_Lists : array( 1 .. 2 ) of XtR5.WidgetList_Ptr;
  Child_Names : constant XlibR5.StringList := (
    1 => new String'( "Main" ), 
    2 => new String'( "Aside" ) );
  Shell_Names : constant XlibR5.StringList := (
    1 => new String'( "Main_appl" ), 
    2 => new String'( "Aside_shell" ) );
  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
end rowsets_uil;
