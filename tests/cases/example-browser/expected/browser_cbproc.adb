with XlibR5;
with XtR5;
with Xm1_2_2;
with browser_client_data;
use  browser_client_data;
procedure browser_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      go_up_cb(w, xtr5.xtnull, call_data);
    when 2 =>
      reload_cb(w, xtr5.xtnull, call_data);
    when 3 =>
      new_folder_cb(w, xtr5.xtnull, call_data);
    when 4 =>
      new_file_cb(w, xtr5.xtnull, call_data);
    when 5 =>
      order_cb(w, integer_5, call_data);
    when 6 =>
      order_cb(w, integer_6, call_data);
    when 7 =>
      order_cb(w, integer_7, call_data);
    when 8 =>
      zoom_cb(w, boolean_8, call_data);
    when 9 =>
      zoom_cb(w, boolean_9, call_data);
    when 10 =>
      folder_cb(w, xtr5.xtnull, call_data);
    when 11 =>
      folder_cb(w, xtr5.xtnull, call_data);
    when 12 =>
      files_cb(w, xtr5.xtnull, call_data);
    when 13 =>
      open_cb(w, xtr5.xtnull, call_data);
    when others =>
      null;
  end case;
end browser_cbproc;
