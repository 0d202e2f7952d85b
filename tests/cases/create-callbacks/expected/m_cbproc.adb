with XlibR5;
with XtR5;
with Xm1_2_2;
with m_client_data;
use  m_client_data;
procedure m_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      quit_cb(w, xtr5.xtnull, call_data);
    when 2 =>
      quit_cb(w, xtr5.xtnull, call_data);
    when 3 =>
      quit_cb(w, xtr5.xtnull, call_data);
    when 4 =>
      quit_cb(w, xtr5.xtnull, call_data);
    when 5 =>
      show_cb(w, widget_5, call_data);
    when 6 =>
      show_cb(w, widget_6, call_data);
    when 7 =>
      set_cb(w, integer_7, call_data);
    when 8 =>
      show_cb(w, widget_8, call_data);
    when 9 =>
      set_cb(w, integer_9, call_data);
    when others =>
      null;
  end case;
end m_cbproc;
