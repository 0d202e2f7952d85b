with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package hello_client_data is
    string_1 : constant string :=
      "Hello, world" &
      character'val(   0 );
    integer_2 : constant integer := 203;
  procedure hello_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, hello_cb_proc);
end hello_client_data;
