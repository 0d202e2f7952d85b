with XlibR5;
with XtR5;
with Xm1_2_2;
generic
  with procedure show_dialog_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  with procedure ok_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  with procedure cancel_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  with procedure help_cb(
      w           : in xtr5.widget;
      client_data : in string;
      call_data   : in xtr5.pointer );
  with procedure name_changed_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure copies_changed_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
procedure dialogs_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
