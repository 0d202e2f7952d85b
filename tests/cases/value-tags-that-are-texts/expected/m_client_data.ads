with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    string_1_1 : constant string :=
      "a" &
      character'val(   0 );
    string_1_2 : constant string :=
      "b" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    compound_string_segment_1 : xm1_2_2.xmstring;
    compound_string_temp_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "c" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    arg_3 : constant string := "XmNitems" & ASCII.NUL;
    compound_string_table_3 : xm1_2_2.xmstringlist( 1 .. 3 ) := ( others => xtr5.xtnull );
    arg_4 : constant string := "XmNitems" & ASCII.NUL;
    string_4_1 : constant string :=
      "f" &
      character'val(   0 );
    string_4_2 : constant string :=
      "" & character'val( 0 );
    asciz_string_table_4 : constant xlibr5.stringlist( 1 .. 3 ) := (
        1 => string_4_1( string_4_1'first )'address,
        2 => string_4_2( string_4_2'first )'address,
        3 => xtr5.xtnull );
    wide_character_5 : constant xlibr5.unsignedshortlist :=
    ( 1 => 16#00000000# );
    compound_string_table_6 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
