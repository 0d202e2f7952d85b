with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package empties_client_data is
    float_1 : constant xtr5.double := 1.500000000000000E+00;
  procedure empties_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, empties_cb_proc);
end empties_client_data;
