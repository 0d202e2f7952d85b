with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    string_1_1 : constant string :=
      "one" &
      character'val(   0 );
    string_1_2 : constant string :=
      "two" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    compound_string_segment_1 : xm1_2_2.xmstring;
    compound_string_temp_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "any" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    arg_3 : constant string := "movedCallback" & ASCII.NUL;
    string_3_1 : constant string :=
      "n" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
