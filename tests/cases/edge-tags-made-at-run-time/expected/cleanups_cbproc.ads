with XlibR5;
with XtR5;
with Xm1_2_2;
generic
  with procedure show(
      w           : in xtr5.widget;
      client_data : in xm1_2_2.xmstring;
      call_data   : in xtr5.pointer );
  with procedure paint(
      w           : in xtr5.widget;
      client_data : in xtr5.pixel;
      call_data   : in xtr5.pointer );
  with procedure lst(
      w           : in xtr5.widget;
      client_data : in xm1_2_2.xmstringlist;
      call_data   : in xtr5.pointer );
procedure cleanups_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
