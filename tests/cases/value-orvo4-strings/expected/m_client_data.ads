with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    arg_1 : constant xmdef.argname :=
        xmdef.argname( string'( "movedCallback" ) & ASCII.NUL );
    string_1 : constant string :=
      "text" &
      character'val(   0 );
    arg_2 : constant xmdef.argname :=
        xmdef.argname( string'( "movedCallback" ) & ASCII.NUL );
    string_2_1 : constant string :=
      "a" &
      character'val(   0 );
    string_2_2 : constant string :=
      "b" &
      character'val(   0 );
    asciz_string_table_2 : constant xlibr5.stringlist( 1 .. 3 ) := (
        1 => string_2_1( string_2_1'first )'address,
        2 => string_2_2( string_2_2'first )'address,
        3 => xtr5.xtnull );
    arg_3 : constant xmdef.argname :=
        xmdef.argname( string'( "movedCallback" ) & ASCII.NUL );
    string_3_1 : constant string :=
      "text" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    arg_4 : constant xmdef.argname :=
        xmdef.argname( string'( "movedCallback" ) & ASCII.NUL );
    compound_string_table_4 : xm1_2_2.xmstringlist( 1 .. 3 ) := ( others => xtr5.xtnull );
    arg_5 : constant xmdef.argname :=
        xmdef.argname( string'( "movedCallback" ) & ASCII.NUL );
    wide_character_5 : constant xlibr5.unsignedshortlist :=
    ( 1 => 16#00000061#, 
      2 => 16#00000000# );
    arg_6 : constant xmdef.argname :=
        xmdef.argname( string'( "movedCallback" ) & ASCII.NUL );
    translation_table_6 : xtr5.translations;
    translation_table_string_6 : constant string :=
        "a" & ASCII.LF &
        "b" & ASCII.LF );
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
