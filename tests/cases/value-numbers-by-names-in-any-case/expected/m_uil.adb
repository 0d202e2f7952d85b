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
  function uppercase_char( chr : in character )
    return character is
    diff : constant :=
           character'pos( 'a' ) - character'pos( 'A' );
  begin
    if chr in 'a' .. 'z' then
      return character'val( character'pos( chr ) - diff );
    else
      return chr;
  end uppercase_char;
  function uppercase_str( str : in string )
    return string is
    upc : string( 1 .. str'length ) := str;
  begin
    for i in upc'range loop
      upc( i ) := uppercase_char( upc( i ) );
    end loop;
    return upc;
  end uppercase_str;
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    upc_name : constant string := uppercase_str( name );
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if upc_name = "L" then
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
    args : xtr5.arglist( 1 .. 13 );
  begin
    declare
    integer_1 : constant integer := 7;
    boolean_2 : constant boolean := true;
    integer_3 : constant integer := 4;
    integer_4 : constant integer := -7;
    arg_5 : constant string := "fa" & ASCII.NUL;
    float_5 : constant xtr5.double := 3.000000000000000E+00;
    arg_6 : constant string := "sa" & ASCII.NUL;
    single_float_6 : constant xlib5.real := 1.000000E+00;
    integer_7 : constant integer := 1;
    arg_8 : constant string := "fa" & ASCII.NUL;
    float_8 : constant xtr5.double := 5.625000000000000E+01;
    integer_9 : constant integer := 1;
    boolean_10 : constant boolean := false;
    string_11_1 : constant string :=
      "tt" &
      character'val(   0 );
    compound_string_11 : xm1_2_2.xmstring;
    single_float_12 : constant xlib5.real := 7.500000E+00;
    boolean_13 : constant boolean := false;
    begin
    xtr5.setarg( args( 1 ), xmdef.nx, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nset, boolean_2 );
    xtr5.setarg( args( 3 ), xmdef.ny, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nwidth, integer_4 );
    xtr5.setarg( args( 5 ), arg_5, float_5'address );
    xtr5.setarg( args( 6 ), arg_6, single_float_6'address );
    xtr5.setarg( args( 7 ), xmdef.nheight, integer_7 );
    xtr5.setarg( args( 8 ), arg_8, float_8'address );
    xtr5.setarg( args( 9 ), xmdef.nborderWidth, integer_9 );
    xtr5.setarg( args( 10 ), xmdef.neditable, boolean_10 );
    compound_string_11 :=
      xm1_2_2.stringsegmentcreate( string_11_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 11 ), xmdef.nlabelString, compound_string_11 );
    xtr5.setarg( args( 12 ), xmdef.nuserData, single_float_12'address );
    xtr5.setarg( args( 13 ), xmdef.nuserData, boolean_13 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              13 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_11 );
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
    args : xtr5.arglist( 1 .. 13 );
  begin
    null;
  end kivu_post_l;
end m_uil;
