with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    arg_1 : constant xmdef.argname :=
        xmdef.argname( string'( "movedCallback" ) & ASCII.NUL );
    boolean_1 : constant boolean := true;
    arg_2 : constant xmdef.argname :=
        xmdef.argname( string'( "movedCallback" ) & ASCII.NUL );
    integer_2 : constant integer := 5;
    arg_3 : constant xmdef.argname :=
        xmdef.argname( string'( "movedCallback" ) & ASCII.NUL );
    single_float_3 : constant xlib5.real := 1.500000E+00;
    arg_4 : constant xmdef.argname :=
        xmdef.argname( string'( "movedCallback" ) & ASCII.NUL );
    float_4 : constant xtr5.double := 1.500000000000000E+00;
    arg_5 : constant xmdef.argname :=
        xmdef.argname( string'( "movedCallback" ) & ASCII.NUL );
    class_rec_name_5 : constant xtr5.widgetclass := xm1_2_2.Labelwidgetclass;
    arg_6 : constant xmdef.argname :=
        xmdef.argname( string'( "movedCallback" ) & ASCII.NUL );
    keysym_6 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'a' ) );
    arg_7 : constant xmdef.argname :=
        xmdef.argname( string'( "movedCallback" ) & ASCII.NUL );
    integer_table_7 : constant xlibr5.intlist( 1 .. 2 ) := (
        1 => 1,
        2 => 2 );
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
