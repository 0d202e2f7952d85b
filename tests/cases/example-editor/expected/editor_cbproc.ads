with XlibR5;
with XtR5;
with Xm1_2_2;
generic
  with procedure command_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  with procedure toggle_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  with procedure changed_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure moved_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
procedure editor_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
