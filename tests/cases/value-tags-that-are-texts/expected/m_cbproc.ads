with XlibR5;
with XtR5;
with Xm1_2_2;
generic
  with procedure one(
      w           : in xtr5.widget;
      client_data : in xm1_2_2.xmstring;
      call_data   : in xtr5.pointer );
  with procedure many(
      w           : in xtr5.widget;
      client_data : in xm1_2_2.xmstringlist;
      call_data   : in xtr5.pointer );
  with procedure texts(
      w           : in xtr5.widget;
      client_data : in xlibr5.stringlist;
      call_data   : in xtr5.pointer );
  with procedure wide(
      w           : in xtr5.widget;
      client_data : in xlibr5.unsignedshortlist;
      call_data   : in xtr5.pointer );
procedure m_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
