with XlibR5;
with XtR5;
with Xm1_2_2;
package cleanups_callbacks is
  procedure show(
      w           : in xtr5.widget;
      client_data : in xm1_2_2.xmstring;
      call_data   : in xtr5.pointer );
  procedure paint(
      w           : in xtr5.widget;
      client_data : in xtr5.pixel;
      call_data   : in xtr5.pointer );
  procedure lst(
      w           : in xtr5.widget;
      client_data : in xm1_2_2.xmstringlist;
      call_data   : in xtr5.pointer );
end cleanups_callbacks;
