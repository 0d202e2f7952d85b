with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package dialogs_client_data is
    integer_1 : constant integer := 1;
    integer_2 : constant integer := 2;
    integer_3 : constant integer := 3;
    integer_4 : constant integer := 4;
    integer_5 : constant integer := 5;
    integer_6 : constant integer := 6;
    integer_7 : constant integer := 1;
    integer_8 : constant integer := 2;
    integer_9 : constant integer := 2;
    string_10 : constant string :=
      "unsaved-changes" &
      character'val(   0 );
    integer_11 : constant integer := 3;
    integer_12 : constant integer := 3;
    integer_14 : constant integer := 4;
    integer_15 : constant integer := 4;
    string_16 : constant string :=
      "choosing-a-file" &
      character'val(   0 );
    string_17 : constant string :=
      "choosing-a-file" &
      character'val(   0 );
    integer_19 : constant integer := 5;
    integer_20 : constant integer := 5;
    string_21 : constant string :=
      "printing" &
      character'val(   0 );
    integer_22 : constant integer := 6;
  procedure dialogs_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, dialogs_cb_proc);
end dialogs_client_data;
