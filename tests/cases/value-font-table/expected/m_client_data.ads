with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    font_table_1 : xm1_2_2.fontlist;
    font_table_entry_1_1 : xm1_2_2.fontlistentry;
    font_table_tag_1_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    font_table_2 : xm1_2_2.fontlist;
    font_table_entry_2_1 : xm1_2_2.fontlistentry;
    font_table_tag_2_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    arg_3 : constant string := "movedCallback" & ASCII.NUL;
    font_table_3 : xm1_2_2.fontlist;
    font_table_entry_3_1 : xm1_2_2.fontlistentry;
    font_table_tag_3_1 : constant string := "iso_latin2";
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
