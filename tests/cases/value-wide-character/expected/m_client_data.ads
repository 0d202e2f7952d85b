with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    wide_character_1 : constant xlibr5.unsignedshortlist :=
    ( 1 => 16#00000078#, 
      2 => 16#00000000# );
    wide_character_2 : constant xlibr5.unsignedshortlist :=
    ( 1 => 16#00000061#, 
      2 => 16#0000000a#, 
      3 => 16#00000062#, 
      4 => 16#00000000# );
    arg_3 : constant string := "movedCallback" & ASCII.NUL;
    wide_character_3 : constant xlibr5.unsignedshortlist :=
    ( 1 => 16#0000007a#, 
      2 => 16#00000000# );
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
