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
    args : xtr5.arglist( 1 .. 5 );
  begin
    declare
    wide_character_1 : constant xlibr5.unsignedshortlist :=
    ( 1 => 16#00000000# );
    wide_character_2 : constant xlibr5.unsignedshortlist :=
    ( 1 => 16#0000000a#, 
      2 => 16#00000022#, 
      3 => 16#00000027#, 
      4 => 16#0000007f#, 
      5 => 16#00000000# );
    arg_3 : constant string := "own" & ASCII.NUL;
    wide_character_3 : constant xlibr5.unsignedshortlist :=
    ( 1 => 16#0000000a#, 
      2 => 16#00000022#, 
      3 => 16#00000027#, 
      4 => 16#0000007f#, 
      5 => 16#00000000# );
    arg_4 : constant string := "own" & ASCII.NUL;
    wide_character_4 : constant xlibr5.unsignedshortlist :=
    ( 1 => 16#00000061#, 
      2 => 16#00000062#, 
      3 => 16#00000063#, 
      4 => 16#00000064#, 
      5 => 16#00000065#, 
      6 => 16#00000066#, 
      7 => 16#00000067#, 
      8 => 16#00000068#, 
      9 => 16#00000069#, 
      10 => 16#0000006a#, 
      11 => 16#0000006b#, 
      12 => 16#00000000# );
    wide_character_5 : constant xlibr5.unsignedshortlist :=
    ( 1 => 16#0000005c#, 
      2 => 16#00000000# );
    begin
    xtr5.setarg( args( 1 ), xmdef.nvalueWcs, wide_character_1( wide_character_1'first )'address );
    xtr5.setarg( args( 2 ), xmdef.nvalueWcs, wide_character_2( wide_character_2'first )'address );
    xtr5.setarg( args( 3 ), arg_3, wide_character_3( wide_character_3'first )'address );
    xtr5.setarg( args( 4 ), arg_4, wide_character_4( wide_character_4'first )'address );
    xtr5.setarg( args( 5 ), xmdef.nuserData, wide_character_5( wide_character_5'first )'address );
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              5 );
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
    args : xtr5.arglist( 1 .. 5 );
  begin
    null;
  end kivu_post_l;
end m_uil;
