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
    args : xtr5.arglist( 1 .. 10 );
  begin
    declare
    string_1_1 : constant string :=
      "a" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "b" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    string_3_1 : constant string :=
      "c" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    string_4_1 : constant string :=
      "d" &
      character'val(   0 );
    string_4_2 : constant string :=
      "c" &
      character'val(   0 );
    compound_string_4 : xm1_2_2.xmstring;
    compound_string_segment_4 : xm1_2_2.xmstring;
    compound_string_temp_4 : xm1_2_2.xmstring;
    string_5_1 : constant string :=
      "e" &
      character'val(   0 );
    compound_string_5 : xm1_2_2.xmstring;
    string_6_1 : constant string :=
      "f" &
      character'val(   0 );
    compound_string_6 : xm1_2_2.xmstring;
    string_7_1 : constant string :=
      "g" &
      character'val(   0 );
    compound_string_7 : xm1_2_2.xmstring;
    string_8_1 : constant string :=
      "h" &
      character'val(   0 );
    compound_string_8 : xm1_2_2.xmstring;
    string_9_1 : constant string :=
      "i" &
      character'val(   0 );
    string_9_2 : constant string :=
      "j" &
      character'val(   0 );
    string_9_3 : constant string :=
      "k" &
      character'val(   0 );
    compound_string_9 : xm1_2_2.xmstring;
    compound_string_segment_9 : xm1_2_2.xmstring;
    compound_string_temp_9 : xm1_2_2.xmstring;
    font_table_10 : xm1_2_2.fontlist;
    font_table_entry_10_1 : xm1_2_2.fontlistentry;
    font_table_tag_10_1 : constant string := "iso_latin8_lr";
    font_table_entry_10_2 : xm1_2_2.fontlistentry;
    font_table_tag_10_2 : constant string := "iso_greek";
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   "iso_latin8_lr",
                                   xm1_2_2.STRING_DIRECTION_R_TO_L,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   "iso_latin8_lr",
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 2 ), xmdef.nlabelString, compound_string_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   "iso_latin1",
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    compound_string_4 :=
      xm1_2_2.stringsegmentcreate( string_4_1,
                                   "iso_latin8_lr",
                                   xm1_2_2.STRING_DIRECTION_R_TO_L,
                                   FALSE );
    compound_string_segment_4 :=
      xm1_2_2.stringsegmentcreate( string_4_2,
                                   "iso_latin1",
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_temp_4 :=
      xm1_2_2.stringcopy( compound_string_4 );
    xm1_2_2.stringfree( compound_string_4 );
    compound_string_4 :=
      xm1_2_2.stringconcat( compound_string_temp_4,
                            compound_string_segment_4 );
    xm1_2_2.stringfree( compound_string_temp_4 );
    xm1_2_2.stringfree( compound_string_segment_4 );
    xtr5.setarg( args( 4 ), xmdef.nlabelString, compound_string_4 );
    compound_string_5 :=
      xm1_2_2.stringsegmentcreate( string_5_1,
                                   "iso_hebrew",
                                   xm1_2_2.STRING_DIRECTION_R_TO_L,
                                   FALSE );
    xtr5.setarg( args( 5 ), xmdef.nlabelString, compound_string_5 );
    compound_string_6 :=
      xm1_2_2.stringsegmentcreate( string_6_1,
                                   "XmForm",
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 6 ), xmdef.nlabelString, compound_string_6 );
    compound_string_7 :=
      xm1_2_2.stringsegmentcreate( string_7_1,
                                   "mine",
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 7 ), xmdef.nlabelString, compound_string_7 );
    compound_string_8 :=
      xm1_2_2.stringsegmentcreate( string_8_1,
                                   "iso_hebrew_lr",
                                   xm1_2_2.STRING_DIRECTION_R_TO_L,
                                   FALSE );
    xtr5.setarg( args( 8 ), xmdef.nlabelString, compound_string_8 );
    compound_string_9 :=
      xm1_2_2.stringsegmentcreate( string_9_1,
                                   "iso_latin8_lr",
                                   xm1_2_2.STRING_DIRECTION_R_TO_L,
                                   FALSE );
    compound_string_segment_9 :=
      xm1_2_2.stringsegmentcreate( string_9_2,
                                   "iso_greek",
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_temp_9 :=
      xm1_2_2.stringcopy( compound_string_9 );
    xm1_2_2.stringfree( compound_string_9 );
    compound_string_9 :=
      xm1_2_2.stringconcat( compound_string_temp_9,
                            compound_string_segment_9 );
    xm1_2_2.stringfree( compound_string_temp_9 );
    xm1_2_2.stringfree( compound_string_segment_9 );
    compound_string_segment_9 :=
      xm1_2_2.stringsegmentcreate( string_9_3,
                                   "iso_latin8_lr",
                                   xm1_2_2.STRING_DIRECTION_R_TO_L,
                                   FALSE );
    compound_string_temp_9 :=
      xm1_2_2.stringcopy( compound_string_9 );
    xm1_2_2.stringfree( compound_string_9 );
    compound_string_9 :=
      xm1_2_2.stringconcat( compound_string_temp_9,
                            compound_string_segment_9 );
    xm1_2_2.stringfree( compound_string_temp_9 );
    xm1_2_2.stringfree( compound_string_segment_9 );
    xtr5.setarg( args( 9 ), xmdef.nlabelString, compound_string_9 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "l" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    font_2 : xlibr5.fontstruct_ptr;
    font_string_2 : constant string :=
      "m" &
      character'val(   0 );
    font_display_2 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_10_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_10_1,
        xm.font_is_font,
        font_1 );
    font_display_2 := XtR5.DisplayOfObject( parent );
    font_2 := xlibr5.loadqueryfont( font_display_2,
                                font_string_2 );
    font_table_entry_10_2 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_10_2,
        xm.font_is_font,
        font_2 );
    end;
    font_table_10 := xtr5.xtnull;
    font_table_10 :=
      xm1_2_2.fontlistappendentry(
        font_table_10,
        font_table_entry_10_1 );
    xtr5.free( font_table_entry_10_1 );
    font_table_10 :=
      xm1_2_2.fontlistappendentry(
        font_table_10,
        font_table_entry_10_2 );
    xtr5.free( font_table_entry_10_2 );
    xtr5.setarg( args( 10 ), xmdef.nfontList, font_table_10 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              10 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    xm1_2_2.stringfree( compound_string_2 );
    xm1_2_2.stringfree( compound_string_3 );
    xm1_2_2.stringfree( compound_string_4 );
    xm1_2_2.stringfree( compound_string_5 );
    xm1_2_2.stringfree( compound_string_6 );
    xm1_2_2.stringfree( compound_string_7 );
    xm1_2_2.stringfree( compound_string_8 );
    xm1_2_2.stringfree( compound_string_9 );
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
    args : xtr5.arglist( 1 .. 10 );
  begin
    null;
  end kivu_post_l;
end m_uil;
