with XlibR5;
with XtR5;
with Xm1_2_2;
with demo_app_client_data;
use  demo_app_client_data;
procedure demo_app_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      quit_cb(w, xtr5.xtnull, call_data);
    when 2 =>
      bare_cb(w, xtr5.xtnull, call_data);
    when 3 =>
      quit_cb(w, xtr5.xtnull, call_data);
    when 4 =>
      any_cb(w, widget_4, call_data);
    when 5 =>
      set_cb(w, integer_5, call_data);
    when 6 =>
      pick_cb(w, string_6, call_data);
    when 7 =>
      flag_cb(w, boolean_7, call_data);
    when 8 =>
      any_cb(w, integer_8'address, call_data);
    when 9 =>
      any_cb(w, string_9( string_9'first )'address, call_data);
    when 10 =>
      any_cb(w, xtr5.xtnull, call_data);
    when 11 =>
      any_cb(w, boolean_11'address, call_data);
    when 12 =>
      bare_cb(w, xtr5.xtnull, call_data);
    when 13 =>
      show_cb(w, widget_13, call_data);
    when 14 =>
      set_cb(w, integer_14, call_data);
    when 15 =>
      set_cb(w, integer_15, call_data);
    when 16 =>
      quit_cb(w, xtr5.xtnull, call_data);
    when others =>
      null;
  end case;
end demo_app_cbproc;
