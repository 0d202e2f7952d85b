with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package myapp_client_data is
  procedure myapp_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma export(c, myapp_cb_proc);
end myapp_client_data;
