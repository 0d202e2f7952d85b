with XlibR5;
with XtR5;
with Xm1_2_2;
with settings_client_data;
use  settings_client_data;
procedure settings_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      help_cb(w, xtr5.xtnull, call_data);
    when 2 =>
      destroyed_cb(w, xtr5.xtnull, call_data);
    when 3 =>
      size_cb(w, integer_3, call_data);
    when 4 =>
      size_cb(w, integer_4, call_data);
    when 5 =>
      size_cb(w, integer_5, call_data);
    when 6 =>
      option_cb(w, integer_6, call_data);
    when 7 =>
      changed_cb(w, xtr5.xtnull, call_data);
    when 8 =>
      option_cb(w, integer_8, call_data);
    when 9 =>
      changed_cb(w, xtr5.xtnull, call_data);
    when 10 =>
      option_cb(w, integer_10, call_data);
    when 11 =>
      changed_cb(w, xtr5.xtnull, call_data);
    when 12 =>
      option_cb(w, integer_12, call_data);
    when 13 =>
      apply_cb(w, xtr5.xtnull, call_data);
    when 14 =>
      changed_cb(w, xtr5.xtnull, call_data);
    when 15 =>
      defaults_cb(w, xtr5.xtnull, call_data);
    when 16 =>
      changed_cb(w, xtr5.xtnull, call_data);
    when 17 =>
      close_cb(w, xtr5.xtnull, call_data);
    when others =>
      null;
  end case;
end settings_cbproc;
