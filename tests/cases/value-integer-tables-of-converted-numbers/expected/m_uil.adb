with Xm;
with Xmdef;
with unchecked_deallocation;
package body m_uil is
  function "="( left, right : in xtr5.widget ) return boolean
    renames xtr5."=";
  create_callback_struct : constant xm1_2_2.anycallbackstruct := (
    reason => xm1_2_2.CR_CREATE,
    event  => null );
  procedure freewidgetlist is new
    unchecked_deallocation( xtr5.widgetlist,
                            xtr5.widgetlist_ptr );
  current_top_level : xtr5.widget := xtr5.xtnull;
  auto_child : xtr5.widget := xtr5.xtnull;
  function kivu_create_l( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_l( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "l" then
      widgets := kivu_create_l( parent );
      kivu_post_l( parent, widgets, widgets'first );
    end if;
    widgets_return := widgets;
  end FetchWidget;
  function Shell return XtR5.Widget is
  begin
    return Shells( Shells'First );
  end Shell;
  function Child_List return XtR5.WidgetList_Ptr is
  begin
    return Child_Lists( Child_Lists'First );
  end Child_List;
  function Child_Name return String is
  begin
    return Child_Names( Child_Names'First ).all;
  end Child_Name;
  function Shell_Name return String is
  begin
    return Shell_Names( Shell_Names'First ).all;
  end Shell_Name;
  function kivu_create_l( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 7 );
  begin
    declare
    integer_table_1 : constant xlibr5.intlist( 1 .. 11 ) := (
        1 => 1,
        2 => -1,
        3 => 1,
        4 => 0,
        5 => -2147483648,
        6 => 2147483647,
        7 => 3,
        8 => 3,
        9 => 7,
        10 => 2,
        11 => -2147483648 );
    arg_2 : constant string := "own" & ASCII.NUL;
    integer_table_2 : constant xlibr5.intlist( 1 .. 1 ) := (
        1 => 0 );
    arg_3 : constant string := "XmNselectedItems" & ASCII.NUL;
    integer_table_3 : constant xlibr5.intlist( 1 .. 2 ) := (
        1 => 1,
        2 => 2 );
    integer_5 : constant integer := 7;
    integer_table_6 : constant xlibr5.intlist( 1 .. 3 ) := (
        1 => 3,
        2 => 0,
        3 => -3 );
    arg_7 : constant string := "own" & ASCII.NUL;
    integer_table_7 : constant xlibr5.intlist( 1 .. 3 ) := (
        1 => 3,
        2 => 0,
        3 => -3 );
    begin
    xtr5.setarg( args( 1 ), xmdef.nuserData, integer_table_1( integer_table_1'first )'address );
    xtr5.setarg( args( 2 ), arg_2, integer_table_2( integer_table_2'first )'address );
    xtr5.setarg( args( 3 ), arg_3, integer_table_3( integer_table_3'first )'address );
    xtr5.setarg( args( 5 ), xmdef.nwidth, integer_5 );
    xtr5.setarg( args( 6 ), xmdef.nselectionArray, integer_table_6( integer_table_6'first )'address );
    xtr5.setarg( args( 7 ), arg_7, integer_table_7( integer_table_7'first )'address );
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              7 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_l;
  procedure kivu_post_l( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 7 );
  begin
    null;
  end kivu_post_l;
end m_uil;
