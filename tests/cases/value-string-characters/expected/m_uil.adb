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
    args : xtr5.arglist( 1 .. 13 );
  begin
    declare
    string_1 : constant string :=
      "x" &
      character'val(   0 );
    string_2 : constant string :=
      "" & character'val( 0 );
    string_3 : constant string :=
      "a" &
      character'val(   9 ) &
      "b" &
      character'val(   0 );
    string_4 : constant string :=
      character'val(  10 ) &
      character'val(   0 );
    string_5 : constant string :=
      character'val(  10 ) &
      "last" &
      character'val(   0 );
    string_6 : constant string :=
      "two" &
      character'val(  10 ) &
      character'val(  13 ) &
      "in a row" &
      character'val(   0 );
    string_7 : constant string :=
      """" &
      character'val(   0 );
    string_8 : constant string :=
      "say """"" &
      character'val(   0 );
    string_9 : constant string :=
      "it's" &
      character'val(   0 );
    string_10 : constant string :=
      character'val( 127 ) &
      "~ " &
      character'val(   0 );
    string_11 : constant string :=
      "a" &
      character'val(   0 );
    string_12 : constant string :=
      " " &
      character'val(   0 );
    string_13 : constant string :=
      "a" &
      character'val(   9 ) &
      "b" &
      character'val(   0 );
    begin
    xtr5.setarg( args( 1 ), xmdef.nuserData, string_1( string_1'first )'address );
    xtr5.setarg( args( 2 ), xmdef.nuserData, string_2( string_2'first )'address );
    xtr5.setarg( args( 3 ), xmdef.nuserData, string_3( string_3'first )'address );
    xtr5.setarg( args( 4 ), xmdef.nuserData, string_4( string_4'first )'address );
    xtr5.setarg( args( 5 ), xmdef.nuserData, string_5( string_5'first )'address );
    xtr5.setarg( args( 6 ), xmdef.nuserData, string_6( string_6'first )'address );
    xtr5.setarg( args( 7 ), xmdef.nuserData, string_7( string_7'first )'address );
    xtr5.setarg( args( 8 ), xmdef.nuserData, string_8( string_8'first )'address );
    xtr5.setarg( args( 9 ), xmdef.nuserData, string_9( string_9'first )'address );
    xtr5.setarg( args( 10 ), xmdef.nuserData, string_10( string_10'first )'address );
    xtr5.setarg( args( 11 ), xmdef.nuserData, string_11( string_11'first )'address );
    xtr5.setarg( args( 12 ), xmdef.nuserData, string_12( string_12'first )'address );
    xtr5.setarg( args( 13 ), xmdef.nuserData, string_13( string_13'first )'address );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "w",
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
  end kivu_create_w;
  procedure kivu_post_w( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 13 );
  begin
    null;
  end kivu_post_w;
end m_uil;
