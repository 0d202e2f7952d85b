with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    icon_1 : xlibr5.pixmap;
    icon_strings_1 : xlibr5.stringlist( 1 .. 1 ) := (
        1 => new string'( "*" ) );
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
    xbitmapfile_2 : xlibr5.pixmap;
    xbitmapfile_file_2 : constant string := "b";
    xbitmapfile_args_2 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_2 : xlibr5.pixel;
    xbitmapfile_foreground_2 : xlibr5.pixel;
    xbitmapfile_depth_2 : xlibr5.int;
    arg_3 : constant string := "movedCallback" & ASCII.NUL;
    xbitmapfile_3 : xlibr5.pixmap;
    xbitmapfile_file_3 : constant string := "c";
    xbitmapfile_args_3 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_3 : xlibr5.pixel;
    xbitmapfile_foreground_3 : xlibr5.pixel;
    xbitmapfile_depth_3 : xlibr5.int;
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
