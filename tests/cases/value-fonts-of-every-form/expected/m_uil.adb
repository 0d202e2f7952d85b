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
    args : xtr5.arglist( 1 .. 8 );
  begin
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "" & character'val( 0 );
    font_display_1 : xlibr5.display;
    font_table_2 : xm1_2_2.fontlist;
    font_table_entry_2_1 : xm1_2_2.fontlistentry;
    font_table_tag_2_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    font_3 : xlibr5.fontstruct_ptr;
    font_string_3 : constant string :=
      "-*-""q""-*" &
      character'val(   9 ) &
      character'val(   0 );
    font_display_3 : xlibr5.display;
    font_table_4 : xm1_2_2.fontlist;
    font_table_entry_4_1 : xm1_2_2.fontlistentry;
    font_table_tag_4_1 : constant string := "iso_greek";
    arg_5 : constant string := "own" & ASCII.NUL;
    font_5 : xlibr5.fontstruct_ptr;
    font_string_5 : constant string :=
      "c" &
      character'val(   0 );
    font_display_5 : xlibr5.display;
    font_table_6 : xm1_2_2.fontlist;
    font_table_entry_6_1 : xm1_2_2.fontlistentry;
    font_table_tag_6_1 : constant string := "mine";
    font_7 : xlibr5.fontstruct_ptr;
    font_string_7 : constant string :=
      "n" &
      character'val(   0 );
    font_display_7 : xlibr5.display;
    arg_8 : constant string := "own" & ASCII.NUL;
    font_8 : xlibr5.fontstruct_ptr;
    font_string_8 : constant string :=
      "n" &
      character'val(   0 );
    font_display_8 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nuserData, font_1 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "" & character'val( 0 );
    font_display_1 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_2_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_2_1,
        xm.font_is_font,
        font_1 );
    end;
    font_table_2 := xtr5.xtnull;
    font_table_2 :=
      xm1_2_2.fontlistappendentry(
        font_table_2,
        font_table_entry_2_1 );
    xtr5.free( font_table_entry_2_1 );
    xtr5.setarg( args( 2 ), xmdef.nfontList, font_table_2 );
    font_display_3 := XtR5.DisplayOfObject( parent );
    font_3 := xlibr5.loadqueryfont( font_display_3,
                                font_string_3 );
    xtr5.setarg( args( 3 ), xmdef.nuserData, font_3 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "ab" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_4_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_4_1,
        xm.font_is_font,
        font_1 );
    end;
    font_table_4 := xtr5.xtnull;
    font_table_4 :=
      xm1_2_2.fontlistappendentry(
        font_table_4,
        font_table_entry_4_1 );
    xtr5.free( font_table_entry_4_1 );
    xtr5.setarg( args( 4 ), xmdef.nfontList, font_table_4 );
    font_display_5 := XtR5.DisplayOfObject( parent );
    font_5 := xlibr5.loadqueryfont( font_display_5,
                                font_string_5 );
    xtr5.setarg( args( 5 ), arg_5, font_5 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "n" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_6_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_6_1,
        xm.font_is_font,
        font_1 );
    end;
    font_table_6 := xtr5.xtnull;
    font_table_6 :=
      xm1_2_2.fontlistappendentry(
        font_table_6,
        font_table_entry_6_1 );
    xtr5.free( font_table_entry_6_1 );
    xtr5.setarg( args( 6 ), xmdef.nbuttonFontList, font_table_6 );
    font_display_7 := XtR5.DisplayOfObject( parent );
    font_7 := xlibr5.loadqueryfont( font_display_7,
                                font_string_7 );
    xtr5.setarg( args( 7 ), xmdef.nuserData, font_7 );
    font_display_8 := XtR5.DisplayOfObject( parent );
    font_8 := xlibr5.loadqueryfont( font_display_8,
                                font_string_8 );
    xtr5.setarg( args( 8 ), arg_8, font_8 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              8 );
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
    args : xtr5.arglist( 1 .. 8 );
  begin
    null;
  end kivu_post_l;
end m_uil;
