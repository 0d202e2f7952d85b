with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package autos_client_data is
    integer_1 : constant integer := 3;
    integer_2 : constant integer := 4;
    integer_3 : constant integer := 1;
    integer_4 : constant integer := 2;
    integer_5 : constant integer := 5;
    integer_6 : constant integer := 1;
    integer_7 : constant integer := 2;
    integer_8 : constant integer := 7;
    integer_9 : constant integer := 6;
  procedure autos_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, autos_cb_proc);
end autos_client_data;
