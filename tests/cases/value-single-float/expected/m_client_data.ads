with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    single_float_1 : constant xlib5.real := 1.000000E+00;
    single_float_2 : constant xlib5.real := 1.000000E-01;
    arg_3 : constant string := "movedCallback" & ASCII.NUL;
    single_float_3 : constant xlib5.real := -2.500000E+02;
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
