with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    arg_1 : constant string := "XmNmyCallback" & ASCII.NUL;
    boolean_1 : constant boolean := true;
    arg_2 : constant string := "XmNmyCallback" & ASCII.NUL;
    integer_2 : constant integer := -3;
    arg_3 : constant string := "XmNmyCallback" & ASCII.NUL;
    single_float_3 : constant xlib5.real := 1.000000E-01;
    arg_4 : constant string := "XmNmyCallback" & ASCII.NUL;
    float_4 : constant xtr5.double := 1.000000000000000E-01;
    arg_5 : constant string := "XmNmyCallback" & ASCII.NUL;
    string_5 : constant string :=
      "a""b" &
      character'val(   0 );
    arg_6 : constant string := "XmNmyCallback" & ASCII.NUL;
    class_rec_name_6 : constant xtr5.widgetclass := xm1_2_2.Formwidgetclass;
    arg_7 : constant string := "XmNmyCallback" & ASCII.NUL;
    widget_7 : xtr5.widget := xtr5.xtnull;
    widget_string_7 : constant string := "*f";
    arg_8 : constant string := "XmNmyCallback" & ASCII.NUL;
    arg_9 : constant string := "XmNmyCallback" & ASCII.NUL;
    arg_10 : constant string := "MrmNcreateCallback" & ASCII.NUL;
    integer_10 : constant integer := 1;
    arg_11 : constant string := "MrmNcreateCallback" & ASCII.NUL;
    widget_11 : xtr5.widget := xtr5.xtnull;
    widget_string_11 : constant string := "*later";
    integer_12 : constant integer := 2;
    widget_13 : xtr5.widget := xtr5.xtnull;
    widget_string_13 : constant string := "*b";
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
