with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    translation_table_1 : xtr5.translations;
    translation_table_string_1 : constant string :=
        "a" & ASCII.LF );
    translation_table_2 : xtr5.translations;
    translation_table_string_2 : constant string :=
        "" & ASCII.LF &
        "b" & ASCII.LF );
    arg_3 : constant string := "movedCallback" & ASCII.NUL;
    translation_table_3 : xtr5.translations;
    translation_table_string_3 : constant string :=
        "c" & ASCII.LF );
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
