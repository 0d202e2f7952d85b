with XlibR5;
with XtR5;
with Xm1_2_2;
generic
  with procedure q(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
procedure m_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
