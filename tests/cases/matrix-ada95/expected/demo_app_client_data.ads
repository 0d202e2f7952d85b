with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package demo_app_client_data is
    widget_4 : xtr5.widget := xtr5.xtnull;
    widget_string_4 : constant string := "*opener_menu";
    integer_5 : constant integer := 42;
    string_6 : constant string :=
      "a ""colour""" &
      character'val(   0 );
    arg_7 : constant string := "demoCallback" & ASCII.NUL;
    boolean_7 : constant boolean := true;
    integer_8 : constant integer := 7;
    string_9 : constant string :=
      "seven" &
      character'val(   0 );
    boolean_11 : constant boolean := false;
    arg_12 : constant string := "demoCallback" & ASCII.NUL;
    widget_13 : xtr5.widget := xtr5.xtnull;
    widget_string_13 : constant string := "*shared";
    integer_14 : constant integer := -1;
    integer_15 : constant integer := 5;
  procedure demo_app_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma export(c, demo_app_cb_proc);
end demo_app_client_data;
