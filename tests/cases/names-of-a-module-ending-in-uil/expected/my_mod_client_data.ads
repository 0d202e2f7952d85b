with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package my_mod_client_data is
  procedure my_mod_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, my_mod_cb_proc);
end my_mod_client_data;
