package body demo_callbacks is
  procedure quit_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end quit_cb;
end demo_callbacks;
