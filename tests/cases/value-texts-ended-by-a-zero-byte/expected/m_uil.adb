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
    args : xtr5.arglist( 1 .. 14 );
  begin
    declare
    string_1 : constant string :=
      "ab" &
      character'val(   0 );
    string_2 : constant string :=
      "abef" &
      character'val(   0 );
    string_3 : constant string :=
      "" & character'val( 0 );
    string_4 : constant string :=
      "" & character'val( 0 );
    string_5_1 : constant string :=
      "a" &
      character'val(   0 );
    string_5_2 : constant string :=
      "" & character'val( 0 );
    string_5_3 : constant string :=
      "c" &
      character'val(   0 );
    asciz_string_table_5 : constant xlibr5.stringlist( 1 .. 4 ) := (
        1 => string_5_1( string_5_1'first )'address,
        2 => string_5_2( string_5_2'first )'address,
        3 => string_5_3( string_5_3'first )'address,
        4 => xtr5.xtnull );
    string_6_1 : constant string :=
      "ab" &
      character'val(   0 );
    compound_string_6 : xm1_2_2.xmstring;
    string_7_1 : constant string :=
      "a" &
      character'val(   0 );
    string_7_2 : constant string :=
      "c" &
      character'val(   0 );
    string_7_3 : constant string :=
      "e" &
      character'val(   0 );
    compound_string_7 : xm1_2_2.xmstring;
    compound_string_segment_7 : xm1_2_2.xmstring;
    compound_string_temp_7 : xm1_2_2.xmstring;
    keysym_8 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'a' ) );
    font_9 : xlibr5.fontstruct_ptr;
    font_string_9 : constant string :=
      "f" &
      character'val(   0 );
    font_display_9 : xlibr5.display;
    class_rec_name_10 : constant xtr5.widgetclass := xm1_2_2.Formwidgetclass;
    wide_character_11 : constant xlibr5.unsignedshortlist :=
    ( 1 => 16#00000077#, 
      2 => 16#00000000# );
    arg_12 : constant xmdef.argname :=
        xmdef.argname( string'( "x" ) & ASCII.NUL );
    string_12 : constant string :=
      "" & character'val( 0 );
    begin
    xtr5.setarg( args( 1 ), xmdef.ntitle, string_1( string_1'first )'address );
    xtr5.setarg( args( 2 ), xmdef.ntitle, string_2( string_2'first )'address );
    xtr5.setarg( args( 3 ), xmdef.ntitle, string_3( string_3'first )'address );
    xtr5.setarg( args( 4 ), xmdef.ntitle, string_4( string_4'first )'address );
    xtr5.setarg( args( 5 ), xmdef.nuserData, asciz_string_table_5( asciz_string_table_5'first )'address );
    compound_string_6 :=
      xm1_2_2.stringsegmentcreate( string_6_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 6 ), xmdef.nlabelString, compound_string_6 );
    compound_string_7 :=
      xm1_2_2.stringsegmentcreate( string_7_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_segment_7 :=
      xm1_2_2.stringsegmentcreate( string_7_2,
                                   "iso_greek",
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_temp_7 :=
      xm1_2_2.stringcopy( compound_string_7 );
    xm1_2_2.stringfree( compound_string_7 );
    compound_string_7 :=
      xm1_2_2.stringconcat( compound_string_temp_7,
                            compound_string_segment_7 );
    xm1_2_2.stringfree( compound_string_temp_7 );
    xm1_2_2.stringfree( compound_string_segment_7 );
    compound_string_segment_7 :=
      xm1_2_2.stringsegmentcreate( string_7_3,
                                   "iso_latin2",
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_temp_7 :=
      xm1_2_2.stringcopy( compound_string_7 );
    xm1_2_2.stringfree( compound_string_7 );
    compound_string_7 :=
      xm1_2_2.stringconcat( compound_string_temp_7,
                            compound_string_segment_7 );
    xm1_2_2.stringfree( compound_string_temp_7 );
    xm1_2_2.stringfree( compound_string_segment_7 );
    xtr5.setarg( args( 7 ), xmdef.nlabelString, compound_string_7 );
    xtr5.setarg( args( 8 ), xmdef.nmnemonic, keysym_8 );
    font_display_9 := XtR5.DisplayOfObject( parent );
    font_9 := xlibr5.loadqueryfont( font_display_9,
                                font_string_9 );
    xtr5.setarg( args( 9 ), xmdef.nuserData, font_9 );
    xtr5.setarg( args( 10 ), xmdef.nuserData, class_rec_name_10 );
    xtr5.setarg( args( 11 ), xmdef.nvalueWcs, wide_character_11( wide_character_11'first )'address );
    xtr5.setarg( args( 12 ), arg_12, string_12( string_12'first )'address );
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              12 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_6 );
    xm1_2_2.stringfree( compound_string_7 );
    end;
    declare
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      "" & character'val( 0 );
    color_args_1 : xtr5.arglist( 1 .. 1 );
    color_colormap_1 : xlibr5.colormap;
    color_screen_rgb_1 : xlibr5.color;
    color_exact_rgb_1 : xlibr5.color;
    color_status_1 : boolean;
    xbitmapfile_2 : xlibr5.pixmap;
    xbitmapfile_file_2 : constant string := "b";
    xbitmapfile_args_2 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_2 : xlibr5.pixel;
    xbitmapfile_foreground_2 : xlibr5.pixel;
    xbitmapfile_depth_2 : xlibr5.int;
    begin
    XtR5.SetArg( color_args_1( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_1'address );
    XtR5.GetValues( self, color_args_1, 1 );
    if string_1'length > 1 then
      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),
                              color_colormap_1,
                              string_1,
                              color_screen_rgb_1,
                              color_exact_rgb_1,
                              color_status_1 );
    else
      color_status_1 := false;
    end if;
    if color_status_1 then
      color_1 := color_screen_rgb_1.pixel;
    else
      color_1 := xlibr5.pixel( 0 );
    end if;
    xtr5.setarg( args( 1 ), xmdef.nuserData, color_1 );
    XtR5.SetArg( xbitmapfile_args_2( 1 ),
                 Xmdef.Nbackground,
                 xbitmapfile_background_2'address );
    XtR5.SetArg( xbitmapfile_args_2( 2 ),
                 Xmdef.Nforeground,
                 xbitmapfile_foreground_2'address );
    XtR5.SetArg( xbitmapfile_args_2( 3 ),
                 Xmdef.Ndepth,
                 xbitmapfile_depth_2'address );
    XtR5.GetValues( self, xbitmapfile_args_2, 3 );
    xbitmapfile_2 :=
      Xm1_2_2.GetPixmapByDepth( XtR5.ScreenOfObject( self ),
                                xbitmapfile_file_2,
                                xbitmapfile_foreground_2,
                                xbitmapfile_background_2,
                                xbitmapfile_depth_2 );
    xtr5.setarg( args( 2 ), xmdef.nuserData, xbitmapfile_2 );
    XtR5.SetValues( self, args, 2 );
    end;
    m_cb_proc( self, 1, create_callback_struct'address );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_l;
  procedure kivu_post_l( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 14 );
  begin
    null;
  end kivu_post_l;
end m_uil;
