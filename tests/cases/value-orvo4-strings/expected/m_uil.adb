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
    args : xtr5.arglist( 1 .. 6 );
  begin
    declare
    arg_1 : constant xmdef.argname :=
        xmdef.argname( string'( "ownResource1" ) & ASCII.NUL );
    string_1 : constant string :=
      "text" &
      character'val(   0 );
    arg_2 : constant xmdef.argname :=
        xmdef.argname( string'( "ownResource2" ) & ASCII.NUL );
    string_2_1 : constant string :=
      "a" &
      character'val(   0 );
    string_2_2 : constant string :=
      "b" &
      character'val(   0 );
    asciz_string_table_2 : constant xlibr5.stringlist( 1 .. 3 ) := (
        1 => string_2_1( string_2_1'first )'address,
        2 => string_2_2( string_2_2'first )'address,
        3 => xtr5.xtnull );
    arg_3 : constant xmdef.argname :=
        xmdef.argname( string'( "ownResource3" ) & ASCII.NUL );
    string_3_1 : constant string :=
      "text" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    arg_4 : constant xmdef.argname :=
        xmdef.argname( string'( "ownResource4" ) & ASCII.NUL );
    compound_string_table_4 : xm1_2_2.xmstringlist( 1 .. 3 ) := ( others => xtr5.xtnull );
    arg_5 : constant xmdef.argname :=
        xmdef.argname( string'( "ownResource5" ) & ASCII.NUL );
    wide_character_5 : constant xlibr5.unsignedshortlist :=
    ( 1 => 16#00000061#, 
      2 => 16#00000000# );
    arg_6 : constant xmdef.argname :=
        xmdef.argname( string'( "ownResource6" ) & ASCII.NUL );
    translation_table_6 : xtr5.translations;
    translation_table_string_6 : constant string :=
        "a" & ASCII.LF &
        "b" & ASCII.LF );
    begin
    xtr5.setarg( args( 1 ), arg_1, string_1( string_1'first )'address );
    xtr5.setarg( args( 2 ), arg_2, asciz_string_table_2( asciz_string_table_2'first )'address );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), arg_3, compound_string_3 );
    declare
    string_1_1 : constant string :=
      "a" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "b" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_4( 1 ) := compound_string_1;
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_4( 2 ) := compound_string_2;
    end;
    xtr5.setarg( args( 4 ), arg_4, compound_string_table_4( compound_string_table_4'first )'address );
    xtr5.setarg( args( 5 ), arg_5, wide_character_5( wide_character_5'first )'address );
    translation_table_6 :=
      xtr5.parsetranslationtable( translation_table_string_6 );
    xtr5.setarg( args( 6 ), arg_6, translation_table_6 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "w",
              args,
              6 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    for index_4 in compound_string_table_4'range loop
      if compound_string_table_4( index_4 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_4( index_4 ) );
      end if;
    end loop;
    end;
    xtr5.addcallback( self, arg_1, m_cb_proc'address, 1 );
    xtr5.addcallback( self, arg_2, m_cb_proc'address, 2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.addcallback( self, arg_3, m_cb_proc'address, 3 );
    declare
    string_1_1 : constant string :=
      "a" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "b" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_4( 1 ) := compound_string_1;
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_4( 2 ) := compound_string_2;
    end;
    xtr5.addcallback( self, arg_4, m_cb_proc'address, 4 );
    xtr5.addcallback( self, arg_5, m_cb_proc'address, 5 );
    translation_table_6 :=
      xtr5.parsetranslationtable( translation_table_string_6 );
    xtr5.addcallback( self, arg_6, m_cb_proc'address, 6 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_w;
  procedure kivu_post_w( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 6 );
  begin
    null;
  end kivu_post_w;
end m_uil;
