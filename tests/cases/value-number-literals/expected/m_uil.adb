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
  function kivu_create_w( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_w( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "w" then
      widgets := kivu_create_w( parent );
      kivu_post_w( parent, widgets, widgets'first );
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
  function kivu_create_w( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 18 );
  begin
    declare
    integer_1 : constant integer := -2147483648;
    integer_2 : constant integer := 2147483647;
    integer_3 : constant integer := -2147483648;
    integer_4 : constant integer := 1;
    integer_5 : constant integer := 5;
    integer_6 : constant integer := 7;
    float_7 : constant xtr5.double := 5.000000000000000E-01;
    float_8 : constant xtr5.double := 5.000000000000000E+00;
    float_9 : constant xtr5.double := 1.000000000000000E+03;
    float_10 : constant xtr5.double := -1.500000000000000E-03;
    float_11 : constant xtr5.double := 0.000000000000000E+00;
    float_12 : constant xtr5.double := 1.000000000000000E+300;
    float_13 : constant xtr5.double := 1.234567891234568E+08;
    single_float_14 : constant xlib5.real := 1.234568E+08;
    single_float_15 : constant xlib5.real := 1.000000E+30;
    single_float_16 : constant xlib5.real := 0.000000E+00;
    float_17 : constant xtr5.double := 3.000000000000000E+00;
    integer_18 : constant integer := 3;
    begin
    xtr5.setarg( args( 1 ), xmdef.nuserData, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nuserData, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.nuserData, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nuserData, integer_4 );
    xtr5.setarg( args( 5 ), xmdef.nuserData, integer_5 );
    xtr5.setarg( args( 6 ), xmdef.nuserData, integer_6 );
    xtr5.setarg( args( 7 ), xmdef.nuserData, float_7'address );
    xtr5.setarg( args( 8 ), xmdef.nuserData, float_8'address );
    xtr5.setarg( args( 9 ), xmdef.nuserData, float_9'address );
    xtr5.setarg( args( 10 ), xmdef.nuserData, float_10'address );
    xtr5.setarg( args( 11 ), xmdef.nuserData, float_11'address );
    xtr5.setarg( args( 12 ), xmdef.nuserData, float_12'address );
    xtr5.setarg( args( 13 ), xmdef.nuserData, float_13'address );
    xtr5.setarg( args( 14 ), xmdef.nuserData, single_float_14'address );
    xtr5.setarg( args( 15 ), xmdef.nuserData, single_float_15'address );
    xtr5.setarg( args( 16 ), xmdef.nuserData, single_float_16'address );
    xtr5.setarg( args( 17 ), xmdef.nuserData, float_17'address );
    xtr5.setarg( args( 18 ), xmdef.nuserData, integer_18 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "w",
              args,
              18 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_w;
  procedure kivu_post_w( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 18 );
  begin
    null;
  end kivu_post_w;
end m_uil;
