package body dialogs_callbacks is
  procedure show_dialog_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end show_dialog_cb;
  procedure ok_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end ok_cb;
  procedure cancel_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end cancel_cb;
  procedure help_cb(
      w           : in xtr5.widget;
      client_data : in string;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end help_cb;
  procedure name_changed_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end name_changed_cb;
  procedure copies_changed_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end copies_changed_cb;
end dialogs_callbacks;
