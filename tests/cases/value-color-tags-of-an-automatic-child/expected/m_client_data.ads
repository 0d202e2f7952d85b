with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    icon_1 : xlibr5.pixmap;
    icon_strings_1 : xlibr5.stringlist( 1 .. 1 ) := (
        1 => new string'( "a" ) );
    icon_strlen_1 : constant integer := 1;
    icon_pixels_1 : xlibr5.pixellist( 1 .. 2 );
    icon_chars_1 : xlibr5.stringlist( 1 .. 2 ) := (
        new string'( " " ),
        new string'( "*" ) );
    icon_chrlen_1 : constant integer := 1;
    icon_depth_1 : xlibr5.int;
    icon_visual_1 : xlibr5.visual_ptr;
    icon_screen_1 : xlibr5.screen_ptr;
    icon_display_1 : xlibr5.display;
    icon_root_1 : xlibr5.window;
    icon_gc_1 : xlibr5.gc;
    icon_gcvalues_1 : xlibr5.gcvalues;
    icon_image_1 : xlibr5.image_ptr;
    icon_args_1 : xtr5.arglist( 1 .. 1 );
    icon_dummy_1 : xlibr5.int;
    icon_data_1 : xlibr5.unsignedcharlist_ptr;
    color_2 : xlibr5.pixel;
    string_2 : constant string :=
      "red" &
      character'val(   0 );
    color_args_2 : xtr5.arglist( 1 .. 1 );
    color_colormap_2 : xlibr5.colormap;
    color_screen_rgb_2 : xlibr5.color;
    color_exact_rgb_2 : xlibr5.color;
    color_status_2 : boolean;
    icon_3 : xlibr5.pixmap;
    icon_strings_3 : xlibr5.stringlist( 1 .. 1 ) := (
        1 => new string'( "*" ) );
    icon_strlen_3 : constant integer := 1;
    icon_pixels_3 : xlibr5.pixellist( 1 .. 2 );
    icon_chars_3 : xlibr5.stringlist( 1 .. 2 ) := (
        new string'( " " ),
        new string'( "*" ) );
    icon_chrlen_3 : constant integer := 1;
    icon_depth_3 : xlibr5.int;
    icon_visual_3 : xlibr5.visual_ptr;
    icon_screen_3 : xlibr5.screen_ptr;
    icon_display_3 : xlibr5.display;
    icon_root_3 : xlibr5.window;
    icon_gc_3 : xlibr5.gc;
    icon_gcvalues_3 : xlibr5.gcvalues;
    icon_image_3 : xlibr5.image_ptr;
    icon_args_3 : xtr5.arglist( 1 .. 1 );
    icon_dummy_3 : xlibr5.int;
    icon_data_3 : xlibr5.unsignedcharlist_ptr;
    widget_4 : xtr5.widget := xtr5.xtnull;
    widget_string_4 : constant string := "*f";
    xbitmapfile_5 : xlibr5.pixmap;
    xbitmapfile_file_5 : constant string := "b";
    xbitmapfile_args_5 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_5 : xlibr5.pixel;
    xbitmapfile_foreground_5 : xlibr5.pixel;
    xbitmapfile_depth_5 : xlibr5.int;
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
