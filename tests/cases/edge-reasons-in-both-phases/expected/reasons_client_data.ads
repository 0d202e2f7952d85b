with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package reasons_client_data is
    arg_1 : constant xmdef.argname :=
        xmdef.argname( string'( "scrollCallback" ) & ASCII.NUL );
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*tree";
    float_2 : constant xtr5.double := 2.500000000000000E+00;
    widget_3 : xtr5.widget := xtr5.xtnull;
    widget_string_3 : constant string := "*right";
    arg_6 : constant xmdef.argname :=
        xmdef.argname( string'( "MrmNcreateCallback" ) & ASCII.NUL );
    arg_7 : constant xmdef.argname :=
        xmdef.argname( string'( "MrmNcreateCallback" ) & ASCII.NUL );
    arg_8 : constant xmdef.argname :=
        xmdef.argname( string'( "MrmNcreateCallback" ) & ASCII.NUL );
    string_8 : constant string :=
      "x" &
      character'val(   0 );
    widget_9 : xtr5.widget := xtr5.xtnull;
    widget_string_9 : constant string := "*right";
    boolean_11 : constant boolean := true;
    arg_12 : constant xmdef.argname :=
        xmdef.argname( string'( "scrollCallback" ) & ASCII.NUL );
    widget_13 : xtr5.widget := xtr5.xtnull;
    widget_string_13 : constant string := "*tree";
    integer_14 : constant integer := 7;
  procedure reasons_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, reasons_cb_proc);
end reasons_client_data;
