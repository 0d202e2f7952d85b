with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    string_1_1 : constant string :=
      "created" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    widget_2 : xtr5.widget := xtr5.xtnull;
    widget_string_2 : constant string := "*w";
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
