package body settings_callbacks is
  procedure size_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end size_cb;
  procedure option_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end option_cb;
  procedure apply_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end apply_cb;
  procedure defaults_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end defaults_cb;
  procedure close_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end close_cb;
  procedure changed_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end changed_cb;
  procedure help_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end help_cb;
  procedure destroyed_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end destroyed_cb;
end settings_callbacks;
