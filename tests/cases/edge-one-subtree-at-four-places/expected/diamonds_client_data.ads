with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package diamonds_client_data is
    integer_1 : constant integer := 2;
    integer_2 : constant integer := 3;
    integer_3 : constant integer := 1;
    integer_4 : constant integer := 4;
  procedure diamonds_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, diamonds_cb_proc);
end diamonds_client_data;
