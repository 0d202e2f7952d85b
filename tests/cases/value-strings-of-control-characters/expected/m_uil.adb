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
    args : xtr5.arglist( 1 .. 13 );
  begin
    declare
    string_1 : constant string :=
      character'val(  10 ) &
      character'val(   0 );
    string_2 : constant string :=
      character'val(   9 ) &
      character'val(  10 ) &
      character'val(   0 );
    string_3 : constant string :=
      "a" &
      character'val(   9 ) &
      character'val(   9 ) &
      "b" &
      character'val(   0 );
    string_4 : constant string :=
      character'val( 127 ) &
      character'val(   0 );
    string_5 : constant string :=
      """" &
      character'val(   0 );
    string_6 : constant string :=
      " " &
      character'val(   0 );
    string_7 : constant string :=
      character'val(   1 ) &
      "x" &
      character'val(   1 ) &
      character'val(   0 );
    string_8 : constant string :=
      """""""" &
      character'val(   0 );
    string_9 : constant string :=
      "it's" &
      character'val(   0 );
    string_10 : constant string :=
      "~" &
      character'val( 127 ) &
      character'val(   0 );
    string_11 : constant string :=
      "\" &
      character'val(   0 );
    string_12 : constant string :=
      character'val(  11 ) &
      character'val(   8 ) &
      character'val(  12 ) &
      character'val(  13 ) &
      character'val(   0 );
    string_13_1 : constant string :=
      character'val(  10 ) &
      character'val(   0 );
    string_13_2 : constant string :=
      "" & character'val( 0 );
    string_13_3 : constant string :=
      """" &
      character'val(   0 );
    string_13_4 : constant string :=
      "a" &
      character'val(  10 ) &
      "b" &
      character'val(   0 );
    asciz_string_table_13 : constant xlibr5.stringlist( 1 .. 5 ) := (
        1 => string_13_1( string_13_1'first )'address,
        2 => string_13_2( string_13_2'first )'address,
        3 => string_13_3( string_13_3'first )'address,
        4 => string_13_4( string_13_4'first )'address,
        5 => xtr5.xtnull );
    begin
    xtr5.setarg( args( 1 ), xmdef.ntitle, string_1( string_1'first )'address );
    xtr5.setarg( args( 2 ), xmdef.ntitle, string_2( string_2'first )'address );
    xtr5.setarg( args( 3 ), xmdef.ntitle, string_3( string_3'first )'address );
    xtr5.setarg( args( 4 ), xmdef.ntitle, string_4( string_4'first )'address );
    xtr5.setarg( args( 5 ), xmdef.ntitle, string_5( string_5'first )'address );
    xtr5.setarg( args( 6 ), xmdef.ntitle, string_6( string_6'first )'address );
    xtr5.setarg( args( 7 ), xmdef.ntitle, string_7( string_7'first )'address );
    xtr5.setarg( args( 8 ), xmdef.ntitle, string_8( string_8'first )'address );
    xtr5.setarg( args( 9 ), xmdef.ntitle, string_9( string_9'first )'address );
    xtr5.setarg( args( 10 ), xmdef.ntitle, string_10( string_10'first )'address );
    xtr5.setarg( args( 11 ), xmdef.ntitle, string_11( string_11'first )'address );
    xtr5.setarg( args( 12 ), xmdef.ntitle, string_12( string_12'first )'address );
    xtr5.setarg( args( 13 ), xmdef.nuserData, asciz_string_table_13( asciz_string_table_13'first )'address );
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              13 );
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
    args : xtr5.arglist( 1 .. 13 );
  begin
    null;
  end kivu_post_l;
end m_uil;
