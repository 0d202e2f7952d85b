with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package phases_client_data is
    integer_1 : constant integer := 1;
    widget_2 : xtr5.widget := xtr5.xtnull;
    widget_string_2 : constant string := "*far";
    integer_3 : constant integer := 2;
    string_4 : constant string :=
      "c" &
      character'val(   0 );
    widget_6 : xtr5.widget := xtr5.xtnull;
    widget_string_6 : constant string := "*far";
    integer_7 : constant integer := 3;
  procedure phases_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, phases_cb_proc);
end phases_client_data;
