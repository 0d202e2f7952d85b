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
    font_table_1 : xm1_2_2.fontlist;
    font_table_entry_1_1 : xm1_2_2.fontlistentry;
    font_table_tag_1_1 : constant string := "iso_latin2";
    font_table_entry_1_2 : xm1_2_2.fontlistentry;
    font_table_tag_1_2 : constant string := "iso_latin2";
    font_table_entry_1_3 : xm1_2_2.fontlistentry;
    font_table_tag_1_3 : constant string := "iso_latin2";
    font_table_entry_1_4 : xm1_2_2.fontlistentry;
    font_table_tag_1_4 : constant string := "iso_latin1";
    font_table_2 : xm1_2_2.fontlist;
    font_table_entry_2_1 : xm1_2_2.fontlistentry;
    font_table_tag_2_1 : constant string := "iso_latin2";
    font_table_3 : xm1_2_2.fontlist;
    font_table_entry_3_1 : xm1_2_2.fontlistentry;
    font_table_tag_3_1 : constant string := "iso_latin2";
    begin
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "a" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    font_2 : xlibr5.fontstruct_ptr;
    font_string_2 : constant string :=
      "b" &
      character'val(   0 );
    font_display_2 : xlibr5.display;
    fontset_3 : xlibr5.fontset;
    fontset_string_3 : constant string :=
        "c";
    fontset_missing_3 : xlibr5.stringlist_ptr;
    fontset_mcount_3 : xlibr5.int;
    fontset_defstr_3 : xlibr5.string_ptr;
    fontset_display_3 : xlibr5.display;
    font_4 : xlibr5.fontstruct_ptr;
    font_string_4 : constant string :=
      "d" &
      character'val(   0 );
    font_display_4 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_1_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_1_1,
        xm.font_is_font,
        font_1 );
    font_display_2 := XtR5.DisplayOfObject( parent );
    font_2 := xlibr5.loadqueryfont( font_display_2,
                                font_string_2 );
    font_table_entry_1_2 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_1_2,
        xm.font_is_font,
        font_2 );
    fontset_display_3 := XtR5.DisplayOfObject( parent );
    xlibr5.createfontset( fontset_display_3,
                          fontset_string_3,
                          fontset_missing_3,
                          fontset_mcount_3,
                          fontset_defstr_3,
                          fontset_3 );
    font_table_entry_1_3 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_1_3,
        xm.font_is_fontset,
        fontset_3 );
    font_display_4 := XtR5.DisplayOfObject( parent );
    font_4 := xlibr5.loadqueryfont( font_display_4,
                                font_string_4 );
    font_table_entry_1_4 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_1_4,
        xm.font_is_font,
        font_4 );
    end;
    font_table_1 := xtr5.xtnull;
    font_table_1 :=
      xm1_2_2.fontlistappendentry(
        font_table_1,
        font_table_entry_1_1 );
    xtr5.free( font_table_entry_1_1 );
    font_table_1 :=
      xm1_2_2.fontlistappendentry(
        font_table_1,
        font_table_entry_1_2 );
    xtr5.free( font_table_entry_1_2 );
    font_table_1 :=
      xm1_2_2.fontlistappendentry(
        font_table_1,
        font_table_entry_1_3 );
    xtr5.free( font_table_entry_1_3 );
    font_table_1 :=
      xm1_2_2.fontlistappendentry(
        font_table_1,
        font_table_entry_1_4 );
    xtr5.free( font_table_entry_1_4 );
    xtr5.setarg( args( 1 ), xmdef.nfontList, font_table_1 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "e" &
      character'val(   0 );
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
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "f" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_3_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_3_1,
        xm.font_is_font,
        font_1 );
    end;
    font_table_3 := xtr5.xtnull;
    font_table_3 :=
      xm1_2_2.fontlistappendentry(
        font_table_3,
        font_table_entry_3_1 );
    xtr5.free( font_table_entry_3_1 );
    xtr5.setarg( args( 3 ), xmdef.nfontList, font_table_3 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              3 );
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
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_l;
end m_uil;
