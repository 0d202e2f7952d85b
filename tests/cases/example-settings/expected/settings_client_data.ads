with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package settings_client_data is
    integer_3 : constant integer := 10;
    integer_4 : constant integer := 12;
    integer_5 : constant integer := 14;
    integer_6 : constant integer := 2;
    integer_8 : constant integer := 4;
    integer_10 : constant integer := 5;
    integer_12 : constant integer := 3;
  procedure settings_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, settings_cb_proc);
end settings_client_data;
