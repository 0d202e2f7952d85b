with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    integer_1 : constant integer := 1;
    widget_2 : xtr5.widget := xtr5.xtnull;
    widget_string_2 : constant string := "*item";
    integer_3 : constant integer := 3;
    widget_4 : xtr5.widget := xtr5.xtnull;
    widget_string_4 : constant string := "*menu";
    integer_5 : constant integer := 2;
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
