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
    args : xtr5.arglist( 1 .. 20 );
  begin
    declare
    arg_1 : constant string := "fa" & ASCII.NUL;
    float_1 : constant xtr5.double := -0.000000000000000E+00;
    arg_2 : constant string := "fa" & ASCII.NUL;
    float_2 : constant xtr5.double := -0.000000000000000E+00;
    arg_3 : constant string := "fa" & ASCII.NUL;
    float_3 : constant xtr5.double := -0.000000000000000E+00;
    arg_4 : constant string := "fa" & ASCII.NUL;
    float_4 : constant xtr5.double := 0.000000000000000E+00;
    arg_5 : constant string := "sa" & ASCII.NUL;
    single_float_5 : constant xlib5.real := 0.000000E+00;
    arg_6 : constant string := "sa" & ASCII.NUL;
    single_float_6 : constant xlib5.real := 0.000000E+00;
    arg_7 : constant string := "sa" & ASCII.NUL;
    single_float_7 : constant xlib5.real := -0.000000E+00;
    arg_8 : constant string := "ia" & ASCII.NUL;
    integer_8 : constant integer := -2147483648;
    arg_9 : constant string := "ia" & ASCII.NUL;
    integer_9 : constant integer := 0;
    arg_10 : constant string := "ia" & ASCII.NUL;
    integer_10 : constant integer := 2147483646;
    arg_11 : constant string := "fa" & ASCII.NUL;
    float_11 : constant xtr5.double := 1.797693134862316E+308;
    arg_12 : constant string := "fa" & ASCII.NUL;
    float_12 : constant xtr5.double := 4.940656458412465E-324;
    arg_13 : constant string := "sa" & ASCII.NUL;
    single_float_13 : constant xlib5.real := 3.402823E+38;
    arg_14 : constant string := "fa" & ASCII.NUL;
    float_14 : constant xtr5.double := 9.999999999999999E+22;
    arg_15 : constant string := "ba" & ASCII.NUL;
    boolean_15 : constant boolean := false;
    arg_16 : constant string := "ba" & ASCII.NUL;
    boolean_16 : constant boolean := true;
    arg_17 : constant string := "ba" & ASCII.NUL;
    boolean_17 : constant boolean := false;
    arg_18 : constant string := "sa" & ASCII.NUL;
    single_float_18 : constant xlib5.real := 1.401298E-45;
    integer_19 : constant integer := -1;
    boolean_20 : constant boolean := true;
    begin
    xtr5.setarg( args( 1 ), arg_1, float_1'address );
    xtr5.setarg( args( 2 ), arg_2, float_2'address );
    xtr5.setarg( args( 3 ), arg_3, float_3'address );
    xtr5.setarg( args( 4 ), arg_4, float_4'address );
    xtr5.setarg( args( 5 ), arg_5, single_float_5'address );
    xtr5.setarg( args( 6 ), arg_6, single_float_6'address );
    xtr5.setarg( args( 7 ), arg_7, single_float_7'address );
    xtr5.setarg( args( 8 ), arg_8, integer_8 );
    xtr5.setarg( args( 9 ), arg_9, integer_9 );
    xtr5.setarg( args( 10 ), arg_10, integer_10 );
    xtr5.setarg( args( 11 ), arg_11, float_11'address );
    xtr5.setarg( args( 12 ), arg_12, float_12'address );
    xtr5.setarg( args( 13 ), arg_13, single_float_13'address );
    xtr5.setarg( args( 14 ), arg_14, float_14'address );
    xtr5.setarg( args( 15 ), arg_15, boolean_15 );
    xtr5.setarg( args( 16 ), arg_16, boolean_16 );
    xtr5.setarg( args( 17 ), arg_17, boolean_17 );
    xtr5.setarg( args( 18 ), arg_18, single_float_18'address );
    xtr5.setarg( args( 19 ), xmdef.nx, integer_19 );
    xtr5.setarg( args( 20 ), xmdef.nset, boolean_20 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              20 );
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
    args : xtr5.arglist( 1 .. 20 );
  begin
    null;
  end kivu_post_l;
end m_uil;
