package body demo_callbacks is
  procedure press_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end press_cb;
end demo_callbacks;
