with XlibR5;
with XtR5;
with Xm1_2_2;
generic
  with procedure pf(
      w           : in xtr5.widget;
      client_data : in xlibr5.fontstruct_ptr;
      call_data   : in xtr5.pointer );
  with procedure ps(
      w           : in xtr5.widget;
      client_data : in xlibr5.fontset;
      call_data   : in xtr5.pointer );
  with procedure pt(
      w           : in xtr5.widget;
      client_data : in xm1_2_2.fontlist;
      call_data   : in xtr5.pointer );
  with procedure pk(
      w           : in xtr5.widget;
      client_data : in xlibr5.keysym;
      call_data   : in xtr5.pointer );
  with procedure pi(
      w           : in xtr5.widget;
      client_data : in xlibr5.intlist;
      call_data   : in xtr5.pointer );
  with procedure pr(
      w           : in xtr5.widget;
      client_data : in xtr5.translations;
      call_data   : in xtr5.pointer );
procedure m_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
