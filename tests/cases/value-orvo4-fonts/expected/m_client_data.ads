with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    arg_1 : constant xmdef.argname :=
        xmdef.argname( string'( "movedCallback" ) & ASCII.NUL );
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "fixed" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    arg_2 : constant xmdef.argname :=
        xmdef.argname( string'( "movedCallback" ) & ASCII.NUL );
    fontset_2 : xlibr5.fontset;
    fontset_string_2 : constant string :=
        "a," &
        "b";
    fontset_missing_2 : xlibr5.stringlist_ptr;
    fontset_mcount_2 : xlibr5.int;
    fontset_defstr_2 : xlibr5.string_ptr;
    fontset_display_2 : xlibr5.display;
    arg_3 : constant xmdef.argname :=
        xmdef.argname( string'( "movedCallback" ) & ASCII.NUL );
    font_table_3 : xm1_2_2.fontlist;
    font_table_entry_3_1 : xm1_2_2.fontlistentry;
    font_table_tag_3_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
