package body editor_callbacks is
  procedure command_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end command_cb;
  procedure toggle_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end toggle_cb;
  procedure changed_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end changed_cb;
  procedure moved_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end moved_cb;
end editor_callbacks;
