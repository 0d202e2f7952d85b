with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package accents_client_data is
    string_1 : constant string :=
      character'val( 233 ) &
      "t" &
      character'val( 233 ) &
      character'val(   0 );
    string_2 : constant string :=
      character'val( 195 ) &
      character'val(   0 );
  procedure accents_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma export(c, accents_cb_proc);
end accents_client_data;
