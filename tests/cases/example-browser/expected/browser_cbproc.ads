with XlibR5;
with XtR5;
with Xm1_2_2;
generic
  with procedure go_up_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure reload_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure new_folder_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure new_file_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure folder_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure files_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure open_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure order_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  with procedure zoom_cb(
      w           : in xtr5.widget;
      client_data : in boolean;
      call_data   : in xtr5.pointer );
procedure browser_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
