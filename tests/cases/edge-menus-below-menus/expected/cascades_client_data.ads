with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package cascades_client_data is
    integer_1 : constant integer := 100;
    integer_2 : constant integer := 2;
    integer_3 : constant integer := 3;
    string_4 : constant string :=
      "more" &
      character'val(   0 );
    integer_5 : constant integer := 4;
    integer_6 : constant integer := 1;
    string_7 : constant string :=
      "file" &
      character'val(   0 );
    integer_8 : constant integer := 5;
  procedure cascades_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, cascades_cb_proc);
end cascades_client_data;
