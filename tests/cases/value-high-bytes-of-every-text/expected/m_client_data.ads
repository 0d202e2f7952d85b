with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    arg_1 : constant string := "ré" & ASCII.NUL;
    string_1 : constant string :=
      '~' &
      character'val(   0 );
    arg_2 : constant string := "ré" & ASCII.NUL;
    string_2_1 : constant string :=
      '~' &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
