with XlibR5;
with XtR5;
with Xm1_2_2;
package hello_callbacks is
  procedure greet_cb(
      w           : in xtr5.widget;
      client_data : in string;
      call_data   : in xtr5.pointer );
  procedure quit_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
end hello_callbacks;
