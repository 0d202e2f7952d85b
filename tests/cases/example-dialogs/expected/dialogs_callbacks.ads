with XlibR5;
with XtR5;
with Xm1_2_2;
package dialogs_callbacks is
  procedure show_dialog_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  procedure ok_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  procedure cancel_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  procedure help_cb(
      w           : in xtr5.widget;
      client_data : in string;
      call_data   : in xtr5.pointer );
  procedure name_changed_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  procedure copies_changed_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
end dialogs_callbacks;
