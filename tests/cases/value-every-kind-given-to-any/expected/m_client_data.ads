with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    boolean_1 : constant boolean := true;
    integer_2 : constant integer := 3;
    single_float_3 : constant xlib5.real := 1.500000E+00;
    float_4 : constant xtr5.double := 2.500000000000000E+00;
    string_5 : constant string :=
      "t" &
      character'val(   0 );
    string_6_1 : constant string :=
      "a" &
      character'val(   0 );
    asciz_string_table_6 : constant xlibr5.stringlist( 1 .. 2 ) := (
        1 => string_6_1( string_6_1'first )'address,
        2 => xtr5.xtnull );
    class_rec_name_7 : constant xtr5.widgetclass := xm1_2_2.Formwidgetclass;
    color_8 : xlibr5.pixel;
    string_8 : constant string :=
      "red" &
      character'val(   0 );
    color_args_8 : xtr5.arglist( 1 .. 1 );
    color_colormap_8 : xlibr5.colormap;
    color_screen_rgb_8 : xlibr5.color;
    color_exact_rgb_8 : xlibr5.color;
    color_status_8 : boolean;
    color_9 : xlibr5.pixel;
    string_9 : constant string :=
      "#000100020003" &
      character'val(   0 );
    color_args_9 : xtr5.arglist( 1 .. 1 );
    color_colormap_9 : xlibr5.colormap;
    color_screen_rgb_9 : xlibr5.color;
    color_exact_rgb_9 : xlibr5.color;
    color_status_9 : boolean;
    string_10_1 : constant string :=
      "x" &
      character'val(   0 );
    compound_string_10 : xm1_2_2.xmstring;
    compound_string_table_11 : xm1_2_2.xmstringlist( 1 .. 3 ) := ( others => xtr5.xtnull );
    font_12 : xlibr5.fontstruct_ptr;
    font_string_12 : constant string :=
      "f" &
      character'val(   0 );
    font_display_12 : xlibr5.display;
    fontset_13 : xlibr5.fontset;
    fontset_string_13 : constant string :=
        "f," &
        "g";
    fontset_missing_13 : xlibr5.stringlist_ptr;
    fontset_mcount_13 : xlibr5.int;
    fontset_defstr_13 : xlibr5.string_ptr;
    fontset_display_13 : xlibr5.display;
    font_table_14 : xm1_2_2.fontlist;
    font_table_entry_14_1 : xm1_2_2.fontlistentry;
    font_table_tag_14_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    icon_15 : xlibr5.pixmap;
    icon_strings_15 : xlibr5.stringlist( 1 .. 1 ) := (
        1 => new string'( "*" ) );
    icon_strlen_15 : constant integer := 1;
    icon_pixels_15 : xlibr5.pixellist( 1 .. 2 );
    icon_chars_15 : xlibr5.stringlist( 1 .. 2 ) := (
        new string'( " " ),
        new string'( "*" ) );
    icon_chrlen_15 : constant integer := 1;
    icon_depth_15 : xlibr5.int;
    icon_visual_15 : xlibr5.visual_ptr;
    icon_screen_15 : xlibr5.screen_ptr;
    icon_display_15 : xlibr5.display;
    icon_root_15 : xlibr5.window;
    icon_gc_15 : xlibr5.gc;
    icon_gcvalues_15 : xlibr5.gcvalues;
    icon_image_15 : xlibr5.image_ptr;
    icon_args_15 : xtr5.arglist( 1 .. 1 );
    icon_dummy_15 : xlibr5.int;
    icon_data_15 : xlibr5.unsignedcharlist_ptr;
    integer_table_16 : constant xlibr5.intlist( 1 .. 1 ) := (
        1 => 1 );
    keysym_17 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'a' ) );
    translation_table_18 : xtr5.translations;
    translation_table_string_18 : constant string :=
        "r" & ASCII.LF );
    wide_character_19 : constant xlibr5.unsignedshortlist :=
    ( 1 => 16#00000077#, 
      2 => 16#00000000# );
    xbitmapfile_20 : xlibr5.pixmap;
    xbitmapfile_file_20 : constant string := "b";
    xbitmapfile_args_20 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_20 : xlibr5.pixel;
    xbitmapfile_foreground_20 : xlibr5.pixel;
    xbitmapfile_depth_20 : xlibr5.int;
    widget_21 : xtr5.widget := xtr5.xtnull;
    widget_string_21 : constant string := "*other";
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma export(c, m_cb_proc);
end m_client_data;
