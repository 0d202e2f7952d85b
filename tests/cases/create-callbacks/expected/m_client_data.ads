with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    arg_3 : constant string := "MrmNcreateCallback" & ASCII.NUL;
    widget_5 : xtr5.widget := xtr5.xtnull;
    widget_string_5 : constant string := "*item";
    widget_6 : xtr5.widget := xtr5.xtnull;
    widget_string_6 : constant string := "*top";
    integer_7 : constant integer := 7;
    widget_8 : xtr5.widget := xtr5.xtnull;
    widget_string_8 : constant string := "*item";
    integer_9 : constant integer := 8;
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
