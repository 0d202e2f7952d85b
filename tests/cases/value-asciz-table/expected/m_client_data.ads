with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    string_1_1 : constant string :=
      "" & character'val( 0 );
    string_1_2 : constant string :=
      "a""b" &
      character'val(   0 );
    string_1_3 : constant string :=
      "c" &
      character'val(   9 ) &
      "d" &
      character'val(   0 );
    asciz_string_table_1 : constant xlibr5.stringlist( 1 .. 4 ) := (
        1 => string_1_1( string_1_1'first )'address,
        2 => string_1_2( string_1_2'first )'address,
        3 => string_1_3( string_1_3'first )'address,
        4 => xtr5.xtnull );
    string_2_1 : constant string :=
      "x" &
      character'val(   0 );
    string_2_2 : constant string :=
      "y" &
      character'val(   0 );
    asciz_string_table_2 : constant xlibr5.stringlist( 1 .. 3 ) := (
        1 => string_2_1( string_2_1'first )'address,
        2 => string_2_2( string_2_2'first )'address,
        3 => xtr5.xtnull );
    arg_3 : constant string := "movedCallback" & ASCII.NUL;
    string_3_1 : constant string :=
      "x" &
      character'val(   0 );
    string_3_2 : constant string :=
      "y" &
      character'val(   0 );
    asciz_string_table_3 : constant xlibr5.stringlist( 1 .. 3 ) := (
        1 => string_3_1( string_3_1'first )'address,
        2 => string_3_2( string_3_2'first )'address,
        3 => xtr5.xtnull );
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
