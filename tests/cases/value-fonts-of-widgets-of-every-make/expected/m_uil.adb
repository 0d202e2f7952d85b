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
  function kivu_create_f( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_box( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_u( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_g( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_om( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_pd( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_f( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_box( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_u( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_g( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_om( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_pd( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "f" then
      widgets := kivu_create_f( parent );
      kivu_post_f( parent, widgets, widgets'first );
    elsif name = "box" then
      widgets := kivu_create_box( parent );
      kivu_post_box( parent, widgets, widgets'first );
    elsif name = "om" then
      widgets := kivu_create_om( parent );
      kivu_post_om( parent, widgets, widgets'first );
    elsif name = "u" then
      widgets := kivu_create_u( parent );
      kivu_post_u( parent, widgets, widgets'first );
    elsif name = "g" then
      widgets := kivu_create_g( parent );
      kivu_post_g( parent, widgets, widgets'first );
    elsif name = "pd" then
      widgets := kivu_create_pd( parent );
      kivu_post_pd( parent, widgets, widgets'first );
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
  function kivu_create_f( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "f",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_box( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_om( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    for child_index in child_lists'range loop
      child_count := child_count +
                     child_lists( child_index )'length;
    end loop;
    declare
      children : xtr5.widgetlist( 1 .. child_count );
    begin
      child_count := children'first;
      children( child_count ) := self;
      for child_index in child_lists'range loop
        children( child_count + 1 ..
                  child_count +
                  child_lists( child_index )'length ) :=
          child_lists( child_index ).all;
        child_count := child_count +
                       child_lists( child_index )'length;
        freewidgetlist( child_lists( child_index ) );
      end loop;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_f;
  function kivu_create_box( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateMessageBox(
              parent,
              "box",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_u( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 4 );
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "a" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    font_table_2 : xm1_2_2.fontlist;
    font_table_entry_2_1 : xm1_2_2.fontlistentry;
    font_table_tag_2_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    font_table_entry_2_2 : xm1_2_2.fontlistentry;
    font_table_tag_2_2 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    translation_table_3 : xtr5.translations;
    translation_table_string_3 : constant string :=
        "t" & ASCII.LF );
    keysym_4 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'k' ) );
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nuserData, font_1 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "a" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    fontset_2 : xlibr5.fontset;
    fontset_string_2 : constant string :=
        "b";
    fontset_missing_2 : xlibr5.stringlist_ptr;
    fontset_mcount_2 : xlibr5.int;
    fontset_defstr_2 : xlibr5.string_ptr;
    fontset_display_2 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_2_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_2_1,
        xm.font_is_font,
        font_1 );
    fontset_display_2 := XtR5.DisplayOfObject( parent );
    xlibr5.createfontset( fontset_display_2,
                          fontset_string_2,
                          fontset_missing_2,
                          fontset_mcount_2,
                          fontset_defstr_2,
                          fontset_2 );
    font_table_entry_2_2 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_2_2,
        xm.font_is_fontset,
        fontset_2 );
    end;
    font_table_2 := xtr5.xtnull;
    font_table_2 :=
      xm1_2_2.fontlistappendentry(
        font_table_2,
        font_table_entry_2_1 );
    xtr5.free( font_table_entry_2_1 );
    font_table_2 :=
      xm1_2_2.fontlistappendentry(
        font_table_2,
        font_table_entry_2_2 );
    xtr5.free( font_table_entry_2_2 );
    xtr5.setarg( args( 2 ), xmdef.nfontList, font_table_2 );
    translation_table_3 :=
      xtr5.parsetranslationtable( translation_table_string_3 );
    xtr5.setarg( args( 3 ), xmdef.ntranslations, translation_table_3 );
    xtr5.setarg( args( 4 ), xmdef.nmnemonic, keysym_4 );
    XtR5.SetValues( child_lists( 2 )( 1 ), args, 4 );
      null;
    end;
      null;
    end if;
    child_lists( 3 ) := kivu_create_g( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    for child_index in child_lists'range loop
      child_count := child_count +
                     child_lists( child_index )'length;
    end loop;
    declare
      children : xtr5.widgetlist( 1 .. child_count );
    begin
      child_count := children'first;
      children( child_count ) := self;
      for child_index in child_lists'range loop
        children( child_count + 1 ..
                  child_count +
                  child_lists( child_index )'length ) :=
          child_lists( child_index ).all;
        child_count := child_count +
                       child_lists( child_index )'length;
        freewidgetlist( child_lists( child_index ) );
      end loop;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_box;
  function kivu_create_u( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "a" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    font_table_2 : xm1_2_2.fontlist;
    font_table_entry_2_1 : xm1_2_2.fontlistentry;
    font_table_tag_2_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    font_table_entry_2_2 : xm1_2_2.fontlistentry;
    font_table_tag_2_2 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    translation_table_3 : xtr5.translations;
    translation_table_string_3 : constant string :=
        "t" & ASCII.LF );
    keysym_4 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'k' ) );
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nuserData, font_1 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "a" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    fontset_2 : xlibr5.fontset;
    fontset_string_2 : constant string :=
        "b";
    fontset_missing_2 : xlibr5.stringlist_ptr;
    fontset_mcount_2 : xlibr5.int;
    fontset_defstr_2 : xlibr5.string_ptr;
    fontset_display_2 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_2_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_2_1,
        xm.font_is_font,
        font_1 );
    fontset_display_2 := XtR5.DisplayOfObject( parent );
    xlibr5.createfontset( fontset_display_2,
                          fontset_string_2,
                          fontset_missing_2,
                          fontset_mcount_2,
                          fontset_defstr_2,
                          fontset_2 );
    font_table_entry_2_2 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_2_2,
        xm.font_is_fontset,
        fontset_2 );
    end;
    font_table_2 := xtr5.xtnull;
    font_table_2 :=
      xm1_2_2.fontlistappendentry(
        font_table_2,
        font_table_entry_2_1 );
    xtr5.free( font_table_entry_2_1 );
    font_table_2 :=
      xm1_2_2.fontlistappendentry(
        font_table_2,
        font_table_entry_2_2 );
    xtr5.free( font_table_entry_2_2 );
    xtr5.setarg( args( 2 ), xmdef.nfontList, font_table_2 );
    translation_table_3 :=
      xtr5.parsetranslationtable( translation_table_string_3 );
    xtr5.setarg( args( 3 ), xmdef.ntranslations, translation_table_3 );
    xtr5.setarg( args( 4 ), xmdef.nmnemonic, keysym_4 );
    self := make(
              parent,
              "u",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_u;
  function kivu_create_g( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "a" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    font_table_2 : xm1_2_2.fontlist;
    font_table_entry_2_1 : xm1_2_2.fontlistentry;
    font_table_tag_2_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    font_table_entry_2_2 : xm1_2_2.fontlistentry;
    font_table_tag_2_2 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    translation_table_3 : xtr5.translations;
    translation_table_string_3 : constant string :=
        "t" & ASCII.LF );
    keysym_4 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'k' ) );
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nuserData, font_1 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "a" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    fontset_2 : xlibr5.fontset;
    fontset_string_2 : constant string :=
        "b";
    fontset_missing_2 : xlibr5.stringlist_ptr;
    fontset_mcount_2 : xlibr5.int;
    fontset_defstr_2 : xlibr5.string_ptr;
    fontset_display_2 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_2_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_2_1,
        xm.font_is_font,
        font_1 );
    fontset_display_2 := XtR5.DisplayOfObject( parent );
    xlibr5.createfontset( fontset_display_2,
                          fontset_string_2,
                          fontset_missing_2,
                          fontset_mcount_2,
                          fontset_defstr_2,
                          fontset_2 );
    font_table_entry_2_2 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_2_2,
        xm.font_is_fontset,
        fontset_2 );
    end;
    font_table_2 := xtr5.xtnull;
    font_table_2 :=
      xm1_2_2.fontlistappendentry(
        font_table_2,
        font_table_entry_2_1 );
    xtr5.free( font_table_entry_2_1 );
    font_table_2 :=
      xm1_2_2.fontlistappendentry(
        font_table_2,
        font_table_entry_2_2 );
    xtr5.free( font_table_entry_2_2 );
    xtr5.setarg( args( 2 ), xmdef.nfontList, font_table_2 );
    translation_table_3 :=
      xtr5.parsetranslationtable( translation_table_string_3 );
    xtr5.setarg( args( 3 ), xmdef.ntranslations, translation_table_3 );
    xtr5.setarg( args( 4 ), xmdef.nmnemonic, keysym_4 );
    self := Xm1_2_2.CreatePushButtonGadget(
              parent,
              "g",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_g;
  function kivu_create_pd( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "pd",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_pd;
  function kivu_create_om( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 5 );
  begin
    child_lists( 1 ) := kivu_create_pd( parent );
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_OptionLabel" );
    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 4 );
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "a" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    font_table_2 : xm1_2_2.fontlist;
    font_table_entry_2_1 : xm1_2_2.fontlistentry;
    font_table_tag_2_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    font_table_entry_2_2 : xm1_2_2.fontlistentry;
    font_table_tag_2_2 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    translation_table_3 : xtr5.translations;
    translation_table_string_3 : constant string :=
        "t" & ASCII.LF );
    keysym_4 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'k' ) );
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nuserData, font_1 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "a" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    fontset_2 : xlibr5.fontset;
    fontset_string_2 : constant string :=
        "b";
    fontset_missing_2 : xlibr5.stringlist_ptr;
    fontset_mcount_2 : xlibr5.int;
    fontset_defstr_2 : xlibr5.string_ptr;
    fontset_display_2 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_2_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_2_1,
        xm.font_is_font,
        font_1 );
    fontset_display_2 := XtR5.DisplayOfObject( parent );
    xlibr5.createfontset( fontset_display_2,
                          fontset_string_2,
                          fontset_missing_2,
                          fontset_mcount_2,
                          fontset_defstr_2,
                          fontset_2 );
    font_table_entry_2_2 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_2_2,
        xm.font_is_fontset,
        fontset_2 );
    end;
    font_table_2 := xtr5.xtnull;
    font_table_2 :=
      xm1_2_2.fontlistappendentry(
        font_table_2,
        font_table_entry_2_1 );
    xtr5.free( font_table_entry_2_1 );
    font_table_2 :=
      xm1_2_2.fontlistappendentry(
        font_table_2,
        font_table_entry_2_2 );
    xtr5.free( font_table_entry_2_2 );
    xtr5.setarg( args( 2 ), xmdef.nfontList, font_table_2 );
    translation_table_3 :=
      xtr5.parsetranslationtable( translation_table_string_3 );
    xtr5.setarg( args( 3 ), xmdef.ntranslations, translation_table_3 );
    xtr5.setarg( args( 4 ), xmdef.nmnemonic, keysym_4 );
    XtR5.SetValues( child_lists( 2 )( 1 ), args, 4 );
      null;
    end;
      null;
    end if;
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "a" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    font_table_2 : xm1_2_2.fontlist;
    font_table_entry_2_1 : xm1_2_2.fontlistentry;
    font_table_tag_2_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    font_table_entry_2_2 : xm1_2_2.fontlistentry;
    font_table_tag_2_2 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    translation_table_3 : xtr5.translations;
    translation_table_string_3 : constant string :=
        "t" & ASCII.LF );
    keysym_4 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'k' ) );
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nuserData, font_1 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "a" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    fontset_2 : xlibr5.fontset;
    fontset_string_2 : constant string :=
        "b";
    fontset_missing_2 : xlibr5.stringlist_ptr;
    fontset_mcount_2 : xlibr5.int;
    fontset_defstr_2 : xlibr5.string_ptr;
    fontset_display_2 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_2_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_2_1,
        xm.font_is_font,
        font_1 );
    fontset_display_2 := XtR5.DisplayOfObject( parent );
    xlibr5.createfontset( fontset_display_2,
                          fontset_string_2,
                          fontset_missing_2,
                          fontset_mcount_2,
                          fontset_defstr_2,
                          fontset_2 );
    font_table_entry_2_2 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_2_2,
        xm.font_is_fontset,
        fontset_2 );
    end;
    font_table_2 := xtr5.xtnull;
    font_table_2 :=
      xm1_2_2.fontlistappendentry(
        font_table_2,
        font_table_entry_2_1 );
    xtr5.free( font_table_entry_2_1 );
    font_table_2 :=
      xm1_2_2.fontlistappendentry(
        font_table_2,
        font_table_entry_2_2 );
    xtr5.free( font_table_entry_2_2 );
    xtr5.setarg( args( 2 ), xmdef.nfontList, font_table_2 );
    translation_table_3 :=
      xtr5.parsetranslationtable( translation_table_string_3 );
    xtr5.setarg( args( 3 ), xmdef.ntranslations, translation_table_3 );
    xtr5.setarg( args( 4 ), xmdef.nmnemonic, keysym_4 );
    xtr5.setarg( args( 5 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateOptionMenu(
              parent,
              "om",
              args,
              5 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    for child_index in child_lists'range loop
      child_count := child_count +
                     child_lists( child_index )'length;
    end loop;
    declare
      children : xtr5.widgetlist( 1 .. child_count );
    begin
      child_count := children'first;
      children( child_count ) := self;
      for child_index in child_lists'range loop
        children( child_count + 1 ..
                  child_count +
                  child_lists( child_index )'length ) :=
          child_lists( child_index ).all;
        child_count := child_count +
                       child_lists( child_index )'length;
        freewidgetlist( child_lists( child_index ) );
      end loop;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_om;
  procedure kivu_post_f( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_box( widgets( index ), widgets, index + 1 );
    kivu_post_om( widgets( index ), widgets, index + 5 );
    null;
  end kivu_post_f;
  procedure kivu_post_box( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_u( widgets( index ), widgets, index + 1 );
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 4 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    kivu_post_g( widgets( index ), widgets, index + 3 );
    null;
  end kivu_post_box;
  procedure kivu_post_u( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    null;
  end kivu_post_u;
  procedure kivu_post_g( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    null;
  end kivu_post_g;
  procedure kivu_post_pd( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_pd;
  procedure kivu_post_om( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 5 );
  begin
    kivu_post_pd( widgets( index ), widgets, index + 1 );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_OptionLabel" );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 4 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    null;
  end kivu_post_om;
end m_uil;
