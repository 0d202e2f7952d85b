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
      one(w, compound_string_1, call_data);
    when 2 =>
      one(w, compound_string_2, call_data);
    when 3 =>
      many(w, compound_string_table_3, call_data);
    when 4 =>
      texts(w, asciz_string_table_4, call_data);
    when 5 =>
      wide(w, wide_character_5, call_data);
    when 6 =>
      many(w, compound_string_table_6, call_data);
    when others =>
      null;
  end case;
end m_cbproc;
