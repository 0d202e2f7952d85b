with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package telephone_client_data is
    integer_3 : constant integer := 1;
    integer_4 : constant integer := 2;
    integer_5 : constant integer := 3;
    integer_6 : constant integer := 4;
    integer_7 : constant integer := 5;
    integer_8 : constant integer := 6;
    integer_9 : constant integer := 7;
    integer_10 : constant integer := 8;
    integer_11 : constant integer := 9;
    integer_12 : constant integer := 10;
    integer_13 : constant integer := 0;
    integer_14 : constant integer := 11;
  procedure telephone_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, telephone_cb_proc);
end telephone_client_data;
