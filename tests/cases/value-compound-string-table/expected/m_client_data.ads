with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    compound_string_table_1 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    compound_string_table_2 : xm1_2_2.xmstringlist( 1 .. 3 ) := ( others => xtr5.xtnull );
    arg_3 : constant string := "movedCallback" & ASCII.NUL;
    compound_string_table_3 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
