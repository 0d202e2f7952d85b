with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package percents_client_data is
    arg_1 : constant string := "100%dCallback" & ASCII.NUL;
    string_1 : constant string :=
      "%d" &
      character'val(   0 );
    arg_2 : constant string := "100%dCallback" & ASCII.NUL;
    keysym_2 : constant xlibr5.keysym := XK.K_%s;
    arg_3 : constant string := "100%dCallback" & ASCII.NUL;
    icon_3 : xlibr5.pixmap;
    icon_strings_3 : xlibr5.stringlist( 1 .. 1 ) := (
        1 => new string'( "%" ) );
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
  procedure percents_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, percents_cb_proc);
end percents_client_data;
