with XlibR5;
with XtR5;
with Xm1_2_2;
package demo_callbacks is
  procedure quit_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
end demo_callbacks;
