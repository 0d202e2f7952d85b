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
    args : xtr5.arglist( 1 .. 6 );
  begin
    declare
    compound_string_table_1 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    font_table_3 : xm1_2_2.fontlist;
    font_table_entry_3_1 : xm1_2_2.fontlistentry;
    font_table_tag_3_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    font_table_entry_3_2 : xm1_2_2.fontlistentry;
    font_table_tag_3_2 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    font_table_entry_3_3 : xm1_2_2.fontlistentry;
    font_table_tag_3_3 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    integer_4 : constant integer := 1;
    arg_5 : constant string := "own" & ASCII.NUL;
    font_table_5 : xm1_2_2.fontlist;
    font_table_entry_5_1 : xm1_2_2.fontlistentry;
    font_table_tag_5_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    font_6 : xlibr5.fontstruct_ptr;
    font_string_6 : constant string :=
      "f" &
      character'val(   0 );
    font_display_6 : xlibr5.display;
    begin
    declare
    string_1_1 : constant string :=
      "a" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_1( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 1 ), xmdef.nitems, compound_string_table_1( compound_string_table_1'first )'address );
    xtr5.setarg( args( 2 ), xmdef.nitemCount, xtr5.argval( compound_string_table_1'length - 1 ) );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "a" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    fontset_2 : xlibr5.fontset;
    fontset_string_2 : constant string :=
        "b," &
        "c";
    fontset_missing_2 : xlibr5.stringlist_ptr;
    fontset_mcount_2 : xlibr5.int;
    fontset_defstr_2 : xlibr5.string_ptr;
    fontset_display_2 : xlibr5.display;
    font_3 : xlibr5.fontstruct_ptr;
    font_string_3 : constant string :=
      "d" &
      character'val(   0 );
    font_display_3 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_3_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_3_1,
        xm.font_is_font,
        font_1 );
    fontset_display_2 := XtR5.DisplayOfObject( parent );
    xlibr5.createfontset( fontset_display_2,
                          fontset_string_2,
                          fontset_missing_2,
                          fontset_mcount_2,
                          fontset_defstr_2,
                          fontset_2 );
    font_table_entry_3_2 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_3_2,
        xm.font_is_fontset,
        fontset_2 );
    font_display_3 := XtR5.DisplayOfObject( parent );
    font_3 := xlibr5.loadqueryfont( font_display_3,
                                font_string_3 );
    font_table_entry_3_3 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_3_3,
        xm.font_is_font,
        font_3 );
    end;
    font_table_3 := xtr5.xtnull;
    font_table_3 :=
      xm1_2_2.fontlistappendentry(
        font_table_3,
        font_table_entry_3_1 );
    xtr5.free( font_table_entry_3_1 );
    font_table_3 :=
      xm1_2_2.fontlistappendentry(
        font_table_3,
        font_table_entry_3_2 );
    xtr5.free( font_table_entry_3_2 );
    font_table_3 :=
      xm1_2_2.fontlistappendentry(
        font_table_3,
        font_table_entry_3_3 );
    xtr5.free( font_table_entry_3_3 );
    xtr5.setarg( args( 3 ), xmdef.nfontList, font_table_3 );
    xtr5.setarg( args( 4 ), xmdef.nwidth, integer_4 );
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
    font_table_entry_5_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_5_1,
        xm.font_is_font,
        font_1 );
    end;
    font_table_5 := xtr5.xtnull;
    font_table_5 :=
      xm1_2_2.fontlistappendentry(
        font_table_5,
        font_table_entry_5_1 );
    xtr5.free( font_table_entry_5_1 );
    xtr5.setarg( args( 5 ), arg_5, font_table_5 );
    font_display_6 := XtR5.DisplayOfObject( parent );
    font_6 := xlibr5.loadqueryfont( font_display_6,
                                font_string_6 );
    xtr5.setarg( args( 6 ), xmdef.nuserData, font_6 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              6 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    for index_1 in compound_string_table_1'range loop
      if compound_string_table_1( index_1 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_1( index_1 ) );
      end if;
    end loop;
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
    args : xtr5.arglist( 1 .. 6 );
  begin
    null;
  end kivu_post_l;
end m_uil;
