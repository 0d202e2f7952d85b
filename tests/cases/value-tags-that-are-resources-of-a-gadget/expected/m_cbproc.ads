with XlibR5;
with XtR5;
with Xm1_2_2;
generic
  with procedure pc(
      w           : in xtr5.widget;
      client_data : in xtr5.pixel;
      call_data   : in xtr5.pointer );
  with procedure pr(
      w           : in xtr5.widget;
      client_data : in xtr5.pixel;
      call_data   : in xtr5.pointer );
  with procedure px(
      w           : in xtr5.widget;
      client_data : in xlibr5.pixmap;
      call_data   : in xtr5.pointer );
  with procedure pi(
      w           : in xtr5.widget;
      client_data : in xlibr5.pixmap;
      call_data   : in xtr5.pointer );
procedure m_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
