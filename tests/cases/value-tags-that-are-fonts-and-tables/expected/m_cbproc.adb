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
      pf(w, font_1, call_data);
    when 2 =>
      ps(w, fontset_2, call_data);
    when 3 =>
      pt(w, font_table_3, call_data);
    when 4 =>
      pt(w, font_table_4, call_data);
    when 5 =>
      pt(w, font_table_5, call_data);
    when 6 =>
      pk(w, keysym_6, call_data);
    when 7 =>
      pk(w, keysym_7, call_data);
    when 8 =>
      pi(w, integer_table_8, call_data);
    when 9 =>
      pr(w, translation_table_9, call_data);
    when others =>
      null;
  end case;
end m_cbproc;
