package body browser_callbacks is
  procedure go_up_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end go_up_cb;
  procedure reload_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end reload_cb;
  procedure new_folder_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end new_folder_cb;
  procedure new_file_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end new_file_cb;
  procedure folder_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end folder_cb;
  procedure files_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end files_cb;
  procedure open_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end open_cb;
  procedure order_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end order_cb;
  procedure zoom_cb(
      w           : in xtr5.widget;
      client_data : in boolean;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end zoom_cb;
end browser_callbacks;
