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
      '~' &
      '~' &
      "x" &
      '~' &
      character'val(   0 );
    string_2_1 : constant string :=
      '~' &
      character'val(   0 );
    string_2_2 : constant string :=
      "a" &
      '~' &
      character'val(   0 );
    asciz_string_table_2 : constant xlibr5.stringlist( 1 .. 3 ) := (
        1 => string_2_1( string_2_1'first )'address,
        2 => string_2_2( string_2_2'first )'address,
        3 => xtr5.xtnull );
    string_3_1 : constant string :=
      '~' &
      character'val(   0 );
    string_3_2 : constant string :=
      '~' &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    compound_string_segment_3 : xm1_2_2.xmstring;
    compound_string_temp_3 : xm1_2_2.xmstring;
    compound_string_table_4 : xm1_2_2.xmstringlist( 1 .. 3 ) := ( others => xtr5.xtnull );
    font_6 : xlibr5.fontstruct_ptr;
    font_string_6 : constant string :=
      '~' &
      character'val(   0 );
    font_display_6 : xlibr5.display;
    font_table_7 : xm1_2_2.fontlist;
    font_table_entry_7_1 : xm1_2_2.fontlistentry;
    font_table_tag_7_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    font_table_entry_7_2 : xm1_2_2.fontlistentry;
    font_table_tag_7_2 : constant string := "iso_latin2";
    keysym_8 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'é' ) );
    fontset_9 : xlibr5.fontset;
    fontset_string_9 : constant string :=
        "é";
    fontset_missing_9 : xlibr5.stringlist_ptr;
    fontset_mcount_9 : xlibr5.int;
    fontset_defstr_9 : xlibr5.string_ptr;
    fontset_display_9 : xlibr5.display;
    class_rec_name_10 : constant xtr5.widgetclass := xm1_2_2.éwidgetclass;
    translation_table_11 : xtr5.translations;
    translation_table_string_11 : constant string :=
        "é" & ASCII.LF );
    begin
    xtr5.setarg( args( 1 ), xmdef.ntitle, string_1( string_1'first )'address );
    xtr5.setarg( args( 2 ), xmdef.nuserData, asciz_string_table_2( asciz_string_table_2'first )'address );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
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
    declare
    string_1_1 : constant string :=
      '~' &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      '~' &
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
    xtr5.setarg( args( 4 ), xmdef.nitems, compound_string_table_4( compound_string_table_4'first )'address );
    xtr5.setarg( args( 5 ), xmdef.nitemCount, xtr5.argval( compound_string_table_4'length - 1 ) );
    font_display_6 := XtR5.DisplayOfObject( parent );
    font_6 := xlibr5.loadqueryfont( font_display_6,
                                font_string_6 );
    xtr5.setarg( args( 6 ), xmdef.nuserData, font_6 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      '~' &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    font_2 : xlibr5.fontstruct_ptr;
    font_string_2 : constant string :=
      '~' &
      character'val(   0 );
    font_display_2 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_7_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_7_1,
        xm.font_is_font,
        font_1 );
    font_display_2 := XtR5.DisplayOfObject( parent );
    font_2 := xlibr5.loadqueryfont( font_display_2,
                                font_string_2 );
    font_table_entry_7_2 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_7_2,
        xm.font_is_font,
        font_2 );
    end;
    font_table_7 := xtr5.xtnull;
    font_table_7 :=
      xm1_2_2.fontlistappendentry(
        font_table_7,
        font_table_entry_7_1 );
    xtr5.free( font_table_entry_7_1 );
    font_table_7 :=
      xm1_2_2.fontlistappendentry(
        font_table_7,
        font_table_entry_7_2 );
    xtr5.free( font_table_entry_7_2 );
    xtr5.setarg( args( 7 ), xmdef.nfontList, font_table_7 );
    xtr5.setarg( args( 8 ), xmdef.nmnemonic, keysym_8 );
    fontset_display_9 := XtR5.DisplayOfObject( parent );
    xlibr5.createfontset( fontset_display_9,
                          fontset_string_9,
                          fontset_missing_9,
                          fontset_mcount_9,
                          fontset_defstr_9,
                          fontset_9 );
    xtr5.setarg( args( 9 ), xmdef.nuserData, fontset_9 );
    xtr5.setarg( args( 10 ), xmdef.nuserData, class_rec_name_10 );
    translation_table_11 :=
      xtr5.parsetranslationtable( translation_table_string_11 );
    xtr5.setarg( args( 11 ), xmdef.ntranslations, translation_table_11 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              11 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    for index_4 in compound_string_table_4'range loop
      if compound_string_table_4( index_4 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_4( index_4 ) );
      end if;
    end loop;
    end;
    declare
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      '~' &
      character'val(   0 );
    color_args_1 : xtr5.arglist( 1 .. 1 );
    color_colormap_1 : xlibr5.colormap;
    color_screen_rgb_1 : xlibr5.color;
    color_exact_rgb_1 : xlibr5.color;
    color_status_1 : boolean;
    icon_2 : xlibr5.pixmap;
    icon_strings_2 : xlibr5.stringlist( 1 .. 1 ) := (
        1 => new string'( "ab" ) );
    icon_strlen_2 : constant integer := 2;
    icon_pixels_2 : xlibr5.pixellist( 1 .. 2 );
    icon_chars_2 : xlibr5.stringlist( 1 .. 2 ) := (
      1 => new string'( "a" ),
      2 => new string'( "b" ) );
    icon_chrlen_2 : constant integer := 1;
    icon_depth_2 : xlibr5.int;
    icon_visual_2 : xlibr5.visual_ptr;
    icon_screen_2 : xlibr5.screen_ptr;
    icon_display_2 : xlibr5.display;
    icon_root_2 : xlibr5.window;
    icon_gc_2 : xlibr5.gc;
    icon_gcvalues_2 : xlibr5.gcvalues;
    icon_image_2 : xlibr5.image_ptr;
    icon_args_2 : xtr5.arglist( 1 .. 1 );
    icon_dummy_2 : xlibr5.int;
    icon_data_2 : xlibr5.unsignedcharlist_ptr;
    xbitmapfile_3 : xlibr5.pixmap;
    xbitmapfile_file_3 : constant string := "é";
    xbitmapfile_args_3 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_3 : xlibr5.pixel;
    xbitmapfile_foreground_3 : xlibr5.pixel;
    xbitmapfile_depth_3 : xlibr5.int;
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
    xtr5.setarg( args( 1 ), xmdef.nbackground, color_1 );
    declare
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      '~' &
      character'val(   0 );
    color_args_1 : xtr5.arglist( 1 .. 1 );
    color_colormap_1 : xlibr5.colormap;
    color_screen_rgb_1 : xlibr5.color;
    color_exact_rgb_1 : xlibr5.color;
    color_status_1 : boolean;
    color_2 : xlibr5.pixel;
    string_2 : constant string :=
      "" & character'val( 0 );
    color_args_2 : xtr5.arglist( 1 .. 1 );
    color_colormap_2 : xlibr5.colormap;
    color_screen_rgb_2 : xlibr5.color;
    color_exact_rgb_2 : xlibr5.color;
    color_status_2 : boolean;
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
    icon_pixels_2( 1 ) := color_1;
    XtR5.SetArg( color_args_2( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_2'address );
    XtR5.GetValues( self, color_args_2, 1 );
    if string_2'length > 1 then
      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),
                              color_colormap_2,
                              string_2,
                              color_screen_rgb_2,
                              color_exact_rgb_2,
                              color_status_2 );
    else
      color_status_2 := false;
    end if;
    if color_status_2 then
      color_2 := color_screen_rgb_2.pixel;
    else
      XtR5.SetArg( color_args_2( 1 ),
                   Xmdef.Nbackground,
                   color_2'address );
      XtR5.GetValues( self, color_args_2, 1 );
    end if;
    icon_pixels_2( 2 ) := color_2;
    end;
    XtR5.SetArg( icon_args_2( 1 ),
                 Xmdef.Ndepth,
                 icon_depth_2'address );
    XtR5.GetValues( self, icon_args_2, 1 );
    icon_display_2 := XtR5.DisplayOfObject( self );
    icon_screen_2  := XtR5.ScreenOfObject( self );
    icon_root_2    :=
      XlibR5.RootWindowOfScreen( icon_screen_2 );
    icon_visual_2  :=
      XlibR5.DefaultVisualOfScreen( icon_screen_2 );
    icon_image_2 :=
      XlibR5.CreateImage( icon_display_2,
                          icon_visual_2,
                          icon_depth_2,
                          xlibr5.zpixmap,
                          0,
                          xtr5.xtnull,
                          icon_strlen_2 / icon_chrlen_2,
                          icon_strings_2'length,
                          xlibr5.bitmappad( icon_display_2 ),
                          0 );
    icon_data_2 :=
      new xlibr5.unsignedcharlist(
        1 .. icon_image_2.height *
             icon_image_2.bytes_per_line );
    icon_image_2.data :=
      icon_data_2( icon_data_2'first )'address;
    for y in icon_strings_2'range loop
      for x in 1 .. icon_strlen_2 / icon_chrlen_2 loop
        for p in icon_chars_2'range loop
          if icon_chars_2( p ).all =
             icon_strings_2( y )
               ( ( x - 1 ) * icon_chrlen_2 + 1 ..
                 x * icon_chrlen_2 ) then
            icon_dummy_2 :=
              xlibr5.putpixel( icon_image_2, x - 1, y - 1,
                               icon_pixels_2( p ) );
            exit;
          end if;
        end loop;
      end loop;
    end loop;
    icon_2 := xlibr5.createpixmap( icon_display_2,
                               icon_root_2,
                               icon_image_2.width,
                               icon_image_2.height,
                               icon_image_2.depth );
    icon_gc_2 := xlibr5.creategc( icon_display_2,
                                   icon_root_2,
                                   0,
                                   icon_gcvalues_2 );
    xlibr5.putimage( icon_display_2,
                     icon_2,
                     icon_gc_2,
                     icon_image_2,
                     0, 0, 0, 0,
                     icon_image_2.width,
                     icon_image_2.height );
    xlibr5.freegc( icon_display_2, icon_gc_2 );
    xtr5.setarg( args( 2 ), xmdef.nuserData, icon_2 );
    XtR5.SetArg( xbitmapfile_args_3( 1 ),
                 Xmdef.Nbackground,
                 xbitmapfile_background_3'address );
    XtR5.SetArg( xbitmapfile_args_3( 2 ),
                 Xmdef.Nforeground,
                 xbitmapfile_foreground_3'address );
    XtR5.SetArg( xbitmapfile_args_3( 3 ),
                 Xmdef.Ndepth,
                 xbitmapfile_depth_3'address );
    XtR5.GetValues( self, xbitmapfile_args_3, 3 );
    xbitmapfile_3 :=
      Xm1_2_2.GetPixmapByDepth( XtR5.ScreenOfObject( self ),
                                xbitmapfile_file_3,
                                xbitmapfile_foreground_3,
                                xbitmapfile_background_3,
                                xbitmapfile_depth_3 );
    xtr5.setarg( args( 3 ), xmdef.nuserData, xbitmapfile_3 );
    XtR5.SetValues( self, args, 3 );
    icon_dummy_2 := xlibr5.destroyimage( icon_image_2 );
    end;
    xtr5.addcallback( self, arg_1, m_cb_proc'address, 1 );
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.addcallback( self, arg_2, m_cb_proc'address, 2 );
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
