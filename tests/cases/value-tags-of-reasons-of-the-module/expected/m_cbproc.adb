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
      pb(w, boolean_1, call_data);
    when 2 =>
      pi(w, integer_2, call_data);
    when 3 =>
      ps(w, single_float_3, call_data);
    when 4 =>
      pf(w, float_4, call_data);
    when 5 =>
      pt(w, string_5, call_data);
    when 6 =>
      pc(w, class_rec_name_6, call_data);
    when 7 =>
      pw(w, widget_7, call_data);
    when 8 =>
      pn(w, xtr5.xtnull, call_data);
    when 9 =>
      pm(w, xtr5.xtnull, call_data);
    when 10 =>
      pi(w, integer_10, call_data);
    when 11 =>
      pw(w, widget_11, call_data);
    when 12 =>
      pi(w, integer_12, call_data);
    when 13 =>
      pw(w, widget_13, call_data);
    when 14 =>
      pn(w, xtr5.xtnull, call_data);
    when 15 =>
      pn(w, xtr5.xtnull, call_data);
    when 16 =>
      pm(w, xtr5.xtnull, call_data);
    when others =>
      null;
  end case;
end m_cbproc;
