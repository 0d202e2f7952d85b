package body hello_callbacks is
  procedure greet_cb(
      w           : in xtr5.widget;
      client_data : in string;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end greet_cb;
  procedure quit_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end quit_cb;
end hello_callbacks;
