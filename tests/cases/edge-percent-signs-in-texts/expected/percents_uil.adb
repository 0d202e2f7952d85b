with Xm;
with Xmdef;
with unchecked_deallocation;
with percents_client_data;
use  percents_client_data;
package body percents_uil is
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
  function kivu_create_top( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "top" then
      widgets := kivu_create_top( parent );
      kivu_post_top( parent, widgets, widgets'first );
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
  function kivu_create_top( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 10 );
  begin
    declare
    arg_1 : constant string := "XtN%s%n" & ASCII.NUL;
    integer_1 : constant integer := 1;
    string_2 : constant string :=
      "%s %d %% %n" &
      character'val(   0 );
    string_3_1 : constant string :=
      "50%x" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    translation_table_4 : xtr5.translations;
    translation_table_string_4 : constant string :=
        "<Key>%: a("%s")" & ASCII.LF );
    font_table_5 : xm1_2_2.fontlist;
    font_table_entry_5_1 : xm1_2_2.fontlistentry;
    font_table_tag_5_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    font_table_entry_5_2 : xm1_2_2.fontlistentry;
    font_table_tag_5_2 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    keysym_6 : constant xlibr5.keysym := xlibr5.keysym( character'pos( '%' ) );
    string_7_1 : constant string :=
      "%" &
      character'val(   0 );
    string_7_2 : constant string :=
      "%%s" &
      character'val(   0 );
    asciz_string_table_7 : constant xlibr5.stringlist( 1 .. 3 ) := (
        1 => string_7_1( string_7_1'first )'address,
        2 => string_7_2( string_7_2'first )'address,
        3 => xtr5.xtnull );
    begin
    xtr5.setarg( args( 1 ), arg_1, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.ntitle, string_2( string_2'first )'address );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    translation_table_4 :=
      xtr5.parsetranslationtable( translation_table_string_4 );
    xtr5.setarg( args( 4 ), xmdef.ntranslations, translation_table_4 );
    declare
    fontset_1 : xlibr5.fontset;
    fontset_string_1 : constant string :=
        "%a," &
        "%b";
    fontset_missing_1 : xlibr5.stringlist_ptr;
    fontset_mcount_1 : xlibr5.int;
    fontset_defstr_1 : xlibr5.string_ptr;
    fontset_display_1 : xlibr5.display;
    font_2 : xlibr5.fontstruct_ptr;
    font_string_2 : constant string :=
      "%c" &
      character'val(   0 );
    font_display_2 : xlibr5.display;
    begin
    fontset_display_1 := XtR5.DisplayOfObject( parent );
    xlibr5.createfontset( fontset_display_1,
                          fontset_string_1,
                          fontset_missing_1,
                          fontset_mcount_1,
                          fontset_defstr_1,
                          fontset_1 );
    font_table_entry_5_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_5_1,
        xm.font_is_fontset,
        fontset_1 );
    font_display_2 := XtR5.DisplayOfObject( parent );
    font_2 := xlibr5.loadqueryfont( font_display_2,
                                font_string_2 );
    font_table_entry_5_2 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_5_2,
        xm.font_is_font,
        font_2 );
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
    xtr5.setarg( args( 5 ), xmdef.nfontList, font_table_5 );
    xtr5.setarg( args( 6 ), xmdef.nmnemonic, keysym_6 );
    xtr5.setarg( args( 7 ), xmdef.nuserData, asciz_string_table_7( asciz_string_table_7'first )'address );
    self := Xm1_2_2.CreateFrame(
              parent,
              "top",
              args,
              7 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    end;
    declare
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      "%dred" &
      character'val(   0 );
    color_args_1 : xtr5.arglist( 1 .. 1 );
    color_colormap_1 : xlibr5.colormap;
    color_screen_rgb_1 : xlibr5.color;
    color_exact_rgb_1 : xlibr5.color;
    color_status_1 : boolean;
    icon_2 : xlibr5.pixmap;
    icon_strings_2 : xlibr5.stringlist( 1 .. 2 ) := (
        1 => new string'( "% %" ),
        2 => new string'( " %s" ) );
    icon_strlen_2 : constant integer := 3;
    icon_pixels_2 : xlibr5.pixellist( 1 .. 2 );
    icon_chars_2 : xlibr5.stringlist( 1 .. 2 ) := (
      1 => new string'( "%" ),
      2 => new string'( " " ) );
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
    xbitmapfile_file_3 : constant string := "%s/%n.xbm";
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
      "%s" &
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
    xtr5.setarg( args( 2 ), xmdef.nlabelPixmap, icon_2 );
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
    xtr5.setarg( args( 3 ), xmdef.narmPixmap, xbitmapfile_3 );
    XtR5.SetValues( self, args, 3 );
    icon_dummy_2 := xlibr5.destroyimage( icon_image_2 );
    end;
    xtr5.addcallback( self, arg_1, percents_cb_proc'address, 1 );
    xtr5.addcallback( self, arg_2, percents_cb_proc'address, 2 );
    declare
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      "" & character'val( 0 );
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
      XtR5.SetArg( color_args_1( 1 ),
                   Xmdef.Nbackground,
                   color_1'address );
      XtR5.GetValues( self, color_args_1, 1 );
    end if;
    icon_pixels_3( 1 ) := color_1;
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
                   Xmdef.Nforeground,
                   color_2'address );
      XtR5.GetValues( self, color_args_2, 1 );
    end if;
    icon_pixels_3( 2 ) := color_2;
    end;
    XtR5.SetArg( icon_args_3( 1 ),
                 Xmdef.Ndepth,
                 icon_depth_3'address );
    XtR5.GetValues( self, icon_args_3, 1 );
    icon_display_3 := XtR5.DisplayOfObject( self );
    icon_screen_3  := XtR5.ScreenOfObject( self );
    icon_root_3    :=
      XlibR5.RootWindowOfScreen( icon_screen_3 );
    icon_visual_3  :=
      XlibR5.DefaultVisualOfScreen( icon_screen_3 );
    icon_image_3 :=
      XlibR5.CreateImage( icon_display_3,
                          icon_visual_3,
                          icon_depth_3,
                          xlibr5.zpixmap,
                          0,
                          xtr5.xtnull,
                          icon_strlen_3 / icon_chrlen_3,
                          icon_strings_3'length,
                          xlibr5.bitmappad( icon_display_3 ),
                          0 );
    icon_data_3 :=
      new xlibr5.unsignedcharlist(
        1 .. icon_image_3.height *
             icon_image_3.bytes_per_line );
    icon_image_3.data :=
      icon_data_3( icon_data_3'first )'address;
    for y in icon_strings_3'range loop
      for x in 1 .. icon_strlen_3 / icon_chrlen_3 loop
        for p in icon_chars_3'range loop
          if icon_chars_3( p ).all =
             icon_strings_3( y )
               ( ( x - 1 ) * icon_chrlen_3 + 1 ..
                 x * icon_chrlen_3 ) then
            icon_dummy_3 :=
              xlibr5.putpixel( icon_image_3, x - 1, y - 1,
                               icon_pixels_3( p ) );
            exit;
          end if;
        end loop;
      end loop;
    end loop;
    icon_3 := xlibr5.createpixmap( icon_display_3,
                               icon_root_3,
                               icon_image_3.width,
                               icon_image_3.height,
                               icon_image_3.depth );
    icon_gc_3 := xlibr5.creategc( icon_display_3,
                                   icon_root_3,
                                   0,
                                   icon_gcvalues_3 );
    xlibr5.putimage( icon_display_3,
                     icon_3,
                     icon_gc_3,
                     icon_image_3,
                     0, 0, 0, 0,
                     icon_image_3.width,
                     icon_image_3.height );
    xlibr5.freegc( icon_display_3, icon_gc_3 );
    xtr5.addcallback( self, arg_3, percents_cb_proc'address, 3 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_top;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 10 );
  begin
    null;
  end kivu_post_top;
end percents_uil;
