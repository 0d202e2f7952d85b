with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    integer_table_1 : constant xlibr5.intlist( 1 .. 2 ) := (
        1 => 1,
        2 => 2 );
    integer_table_2 : constant xlibr5.intlist( 1 .. 2 ) := (
        1 => 2,
        2 => -2 );
    arg_3 : constant string := "movedCallback" & ASCII.NUL;
    integer_table_3 : constant xlibr5.intlist( 1 .. 1 ) := (
        1 => 0 );
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
