with XlibR5;
with XtR5;
with Xm1_2_2;
package unused_callbacks is
  procedure hit(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  procedure miss(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
end unused_callbacks;
