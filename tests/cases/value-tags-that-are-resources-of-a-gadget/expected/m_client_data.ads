with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    arg_1 : constant xmdef.argname :=
        xmdef.argname( string'( "XmNmine" ) & ASCII.NUL );
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      "red" &
      character'val(   0 );
    color_args_1 : xtr5.arglist( 1 .. 1 );
    color_colormap_1 : xlibr5.colormap;
    color_screen_rgb_1 : xlibr5.color;
    color_exact_rgb_1 : xlibr5.color;
    color_status_1 : boolean;
    arg_2 : constant xmdef.argname :=
        xmdef.argname( string'( "XmNmine" ) & ASCII.NUL );
    color_2 : xlibr5.pixel;
    string_2 : constant string :=
      "#000100020003" &
      character'val(   0 );
    color_args_2 : xtr5.arglist( 1 .. 1 );
    color_colormap_2 : xlibr5.colormap;
    color_screen_rgb_2 : xlibr5.color;
    color_exact_rgb_2 : xlibr5.color;
    color_status_2 : boolean;
    xbitmapfile_3 : xlibr5.pixmap;
    xbitmapfile_file_3 : constant string := "b.xbm";
    xbitmapfile_args_3 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_3 : xlibr5.pixel;
    xbitmapfile_foreground_3 : xlibr5.pixel;
    xbitmapfile_depth_3 : xlibr5.int;
    icon_4 : xlibr5.pixmap;
    icon_strings_4 : xlibr5.stringlist( 1 .. 1 ) := (
        1 => new string'( "*" ) );
    icon_strlen_4 : constant integer := 1;
    icon_pixels_4 : xlibr5.pixellist( 1 .. 2 );
    icon_chars_4 : xlibr5.stringlist( 1 .. 2 ) := (
        new string'( " " ),
        new string'( "*" ) );
    icon_chrlen_4 : constant integer := 1;
    icon_depth_4 : xlibr5.int;
    icon_visual_4 : xlibr5.visual_ptr;
    icon_screen_4 : xlibr5.screen_ptr;
    icon_display_4 : xlibr5.display;
    icon_root_4 : xlibr5.window;
    icon_gc_4 : xlibr5.gc;
    icon_gcvalues_4 : xlibr5.gcvalues;
    icon_image_4 : xlibr5.image_ptr;
    icon_args_4 : xtr5.arglist( 1 .. 1 );
    icon_dummy_4 : xlibr5.int;
    icon_data_4 : xlibr5.unsignedcharlist_ptr;
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
