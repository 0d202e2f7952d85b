with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package two_tops_client_data is
    string_1 : constant string :=
      "ask" &
      character'val(   0 );
    integer_2 : constant integer := 1;
    string_3 : constant string :=
      "help" &
      character'val(   0 );
    integer_4 : constant integer := 2;
    string_5 : constant string :=
      "pane" &
      character'val(   0 );
    integer_6 : constant integer := 3;
    string_7 : constant string :=
      "menu" &
      character'val(   0 );
  procedure two_tops_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma export(c, two_tops_cb_proc);
end two_tops_client_data;
