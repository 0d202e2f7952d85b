with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "a""b" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    font_2 : xlibr5.fontstruct_ptr;
    font_string_2 : constant string :=
      "any" &
      character'val(   0 );
    font_display_2 : xlibr5.display;
    arg_3 : constant string := "movedCallback" & ASCII.NUL;
    font_3 : xlibr5.fontstruct_ptr;
    font_string_3 : constant string :=
      "" & character'val( 0 );
    font_display_3 : xlibr5.display;
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
