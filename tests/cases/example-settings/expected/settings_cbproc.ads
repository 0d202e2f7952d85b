with XlibR5;
with XtR5;
with Xm1_2_2;
generic
  with procedure size_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  with procedure option_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  with procedure apply_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure defaults_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure close_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure changed_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure help_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure destroyed_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
procedure settings_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
