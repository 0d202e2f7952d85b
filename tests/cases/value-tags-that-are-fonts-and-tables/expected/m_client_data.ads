with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    arg_1 : constant xmdef.argname :=
        xmdef.argname( string'( "own" ) & ASCII.NUL );
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "a" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    arg_2 : constant xmdef.argname :=
        xmdef.argname( string'( "own" ) & ASCII.NUL );
    fontset_2 : xlibr5.fontset;
    fontset_string_2 : constant string :=
        "a," &
        "b";
    fontset_missing_2 : xlibr5.stringlist_ptr;
    fontset_mcount_2 : xlibr5.int;
    fontset_defstr_2 : xlibr5.string_ptr;
    fontset_display_2 : xlibr5.display;
    arg_3 : constant xmdef.argname :=
        xmdef.argname( string'( "own" ) & ASCII.NUL );
    font_table_3 : xm1_2_2.fontlist;
    font_table_entry_3_1 : xm1_2_2.fontlistentry;
    font_table_tag_3_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    arg_4 : constant xmdef.argname :=
        xmdef.argname( string'( "own" ) & ASCII.NUL );
    font_table_4 : xm1_2_2.fontlist;
    font_table_entry_4_1 : xm1_2_2.fontlistentry;
    font_table_tag_4_1 : constant string := "iso_greek";
    arg_5 : constant xmdef.argname :=
        xmdef.argname( string'( "own" ) & ASCII.NUL );
    font_table_5 : xm1_2_2.fontlist;
    font_table_entry_5_1 : xm1_2_2.fontlistentry;
    font_table_tag_5_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    font_table_entry_5_2 : xm1_2_2.fontlistentry;
    font_table_tag_5_2 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    keysym_6 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'a' ) );
    keysym_7 : constant xlibr5.keysym := XK.K_Return;
    integer_table_8 : constant xlibr5.intlist( 1 .. 2 ) := (
        1 => 1,
        2 => -2 );
    translation_table_9 : xtr5.translations;
    translation_table_string_9 : constant string :=
        "r" & ASCII.LF );
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
