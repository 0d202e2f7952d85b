with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    string_1 : constant string :=
      "ab""c" &
      character'val(   0 );
    string_2 : constant string :=
      "a" &
      character'val(   9 ) &
      "b" &
      character'val(   0 );
    arg_3 : constant string := "movedCallback" & ASCII.NUL;
    string_3 : constant string :=
      "x" &
      character'val(   0 );
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
