with Xm;
with Xmdef;
with unchecked_deallocation;
with m_client_data;
use  m_client_data;
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
  function kivu_create_b( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_b( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "b" then
      widgets := kivu_create_b( parent );
      kivu_post_b( parent, widgets, widgets'first );
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
  function kivu_create_b( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePushButton(
              parent,
              "b",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    xtr5.addcallback( self, arg_1, m_cb_proc'address, 1 );
    fontset_display_2 := XtR5.DisplayOfObject( parent );
    xlibr5.createfontset( fontset_display_2,
                          fontset_string_2,
                          fontset_missing_2,
                          fontset_mcount_2,
                          fontset_defstr_2,
                          fontset_2 );
    xtr5.addcallback( self, arg_2, m_cb_proc'address, 2 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "a" &
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
    xtr5.addcallback( self, arg_3, m_cb_proc'address, 3 );
    declare
    fontset_1 : xlibr5.fontset;
    fontset_string_1 : constant string :=
        "b";
    fontset_missing_1 : xlibr5.stringlist_ptr;
    fontset_mcount_1 : xlibr5.int;
    fontset_defstr_1 : xlibr5.string_ptr;
    fontset_display_1 : xlibr5.display;
    begin
    fontset_display_1 := XtR5.DisplayOfObject( parent );
    xlibr5.createfontset( fontset_display_1,
                          fontset_string_1,
                          fontset_missing_1,
                          fontset_mcount_1,
                          fontset_defstr_1,
                          fontset_1 );
    font_table_entry_4_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_4_1,
        xm.font_is_fontset,
        fontset_1 );
    end;
    font_table_4 := xtr5.xtnull;
    font_table_4 :=
      xm1_2_2.fontlistappendentry(
        font_table_4,
        font_table_entry_4_1 );
    xtr5.free( font_table_entry_4_1 );
    xtr5.addcallback( self, arg_4, m_cb_proc'address, 4 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "c" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    fontset_2 : xlibr5.fontset;
    fontset_string_2 : constant string :=
        "d";
    fontset_missing_2 : xlibr5.stringlist_ptr;
    fontset_mcount_2 : xlibr5.int;
    fontset_defstr_2 : xlibr5.string_ptr;
    fontset_display_2 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_5_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_5_1,
        xm.font_is_font,
        font_1 );
    fontset_display_2 := XtR5.DisplayOfObject( parent );
    xlibr5.createfontset( fontset_display_2,
                          fontset_string_2,
                          fontset_missing_2,
                          fontset_mcount_2,
                          fontset_defstr_2,
                          fontset_2 );
    font_table_entry_5_2 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_5_2,
        xm.font_is_fontset,
        fontset_2 );
    end;
    font_table_5 := xtr5.xtnull;
    font_table_5 :=
      xm1_2_2.fontlistappendentry(
        font_table_5,
        font_table_entry_5_1 );
    xtr5.free( font_table_entry_5_1 );
    font_table_5 :=
      xm1_2_2.fontlistappendentry(
        font_table_5,
        font_table_entry_5_2 );
    xtr5.free( font_table_entry_5_2 );
    xtr5.addcallback( self, arg_5, m_cb_proc'address, 5 );
    xtr5.addcallback( self, Xmdef.NarmCallback, m_cb_proc'address, 6 );
    xtr5.addcallback( self, Xmdef.NarmCallback, m_cb_proc'address, 7 );
    xtr5.addcallback( self, Xmdef.NarmCallback, m_cb_proc'address, 8 );
    translation_table_9 :=
      xtr5.parsetranslationtable( translation_table_string_9 );
    xtr5.addcallback( self, Xmdef.NarmCallback, m_cb_proc'address, 9 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_b;
  procedure kivu_post_b( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_b;
end m_uil;
