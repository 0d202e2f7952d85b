with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package sharings_client_data is
    integer_1 : constant integer := 1;
    string_2 : constant string :=
      "base" &
      character'val(   0 );
    integer_3 : constant integer := 2;
    integer_4 : constant integer := 1;
    string_5 : constant string :=
      "base" &
      character'val(   0 );
    integer_6 : constant integer := 2;
    integer_7 : constant integer := 1;
    string_8 : constant string :=
      "base" &
      character'val(   0 );
    integer_9 : constant integer := 1;
    string_10 : constant string :=
      "base" &
      character'val(   0 );
    integer_11 : constant integer := 2;
    string_12 : constant string :=
      "a" &
      character'val(   0 );
    integer_13 : constant integer := 1;
    string_14 : constant string :=
      "base" &
      character'val(   0 );
    integer_15 : constant integer := 2;
    integer_16 : constant integer := 1;
    string_17 : constant string :=
      "base" &
      character'val(   0 );
    integer_18 : constant integer := 1;
    string_19 : constant string :=
      "base" &
      character'val(   0 );
    integer_20 : constant integer := 2;
  procedure sharings_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, sharings_cb_proc);
end sharings_client_data;
