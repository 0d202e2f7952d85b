with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package mixed_client_data is
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*Top";
    widget_2 : xtr5.widget := xtr5.xtnull;
    widget_string_2 : constant string := "*One";
    widget_3 : xtr5.widget := xtr5.xtnull;
    widget_string_3 : constant string := "*TWO";
  procedure mixed_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, mixed_cb_proc);
end mixed_client_data;
