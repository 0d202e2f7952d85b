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
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    string_1_1 : constant string :=
      "x" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "y" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    string_3_1 : constant string :=
      "ab" &
      character'val(   0 );
    string_3_2 : constant string :=
      "c" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    compound_string_segment_3 : xm1_2_2.xmstring;
    compound_string_temp_3 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   "",
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   "",
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 2 ), xmdef.nlabelString, compound_string_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   "",
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_segment_3 :=
      xm1_2_2.stringsegmentcreate( string_3_2,
                                   "iso_greek",
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_temp_3 :=
      xm1_2_2.stringcopy( compound_string_3 );
    xm1_2_2.stringfree( compound_string_3 );
    compound_string_3 :=
      xm1_2_2.stringconcat( compound_string_temp_3,
                            compound_string_segment_3 );
    xm1_2_2.stringfree( compound_string_temp_3 );
    xm1_2_2.stringfree( compound_string_segment_3 );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    xm1_2_2.stringfree( compound_string_2 );
    xm1_2_2.stringfree( compound_string_3 );
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
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_l;
end m_uil;
