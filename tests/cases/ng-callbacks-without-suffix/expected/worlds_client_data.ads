with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package worlds_client_data is
    boolean_1 : constant boolean := true;
    boolean_2 : constant boolean := true;
  procedure worlds_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma call_in(c, worlds_cb_proc);
end worlds_client_data;
