with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package browser_client_data is
    integer_5 : constant integer := 1;
    integer_6 : constant integer := 2;
    integer_7 : constant integer := 3;
    boolean_8 : constant boolean := false;
    boolean_9 : constant boolean := true;
  procedure browser_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, browser_cb_proc);
end browser_client_data;
