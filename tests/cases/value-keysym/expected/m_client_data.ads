with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    keysym_1 : constant xlibr5.keysym := XK.K_F1;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'x' ) );
    arg_3 : constant string := "movedCallback" & ASCII.NUL;
    keysym_3 : constant xlibr5.keysym := XK.K_Escape;
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
