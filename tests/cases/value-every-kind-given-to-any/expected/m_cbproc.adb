with XlibR5;
with XtR5;
with Xm1_2_2;
with m_client_data;
use  m_client_data;
with m_callbacks;
procedure m_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      m_callbacks.p(w, boolean_1'address, call_data);
    when 2 =>
      m_callbacks.p(w, integer_2'address, call_data);
    when 3 =>
      m_callbacks.p(w, single_float_3'address, call_data);
    when 4 =>
      m_callbacks.p(w, float_4'address, call_data);
    when 5 =>
      m_callbacks.p(w, string_5( string_5'first )'address, call_data);
    when 6 =>
      m_callbacks.p(w, asciz_string_table_6( asciz_string_table_6'first )'address, call_data);
    when 7 =>
      m_callbacks.p(w, class_rec_name_7, call_data);
    when 8 =>
      m_callbacks.p(w, color_8'address, call_data);
    when 9 =>
      m_callbacks.p(w, color_9'address, call_data);
    when 10 =>
      m_callbacks.p(w, compound_string_10, call_data);
    when 11 =>
      m_callbacks.p(w, compound_string_table_11( compound_string_table_11'first )'address, call_data);
    when 12 =>
      m_callbacks.p(w, font_12, call_data);
    when 13 =>
      m_callbacks.p(w, fontset_13, call_data);
    when 14 =>
      m_callbacks.p(w, font_table_14, call_data);
    when 15 =>
      m_callbacks.p(w, icon_15'address, call_data);
    when 16 =>
      m_callbacks.p(w, integer_table_16( integer_table_16'first )'address, call_data);
    when 17 =>
      m_callbacks.p(w, keysym_17'address, call_data);
    when 18 =>
      m_callbacks.p(w, translation_table_18, call_data);
    when 19 =>
      m_callbacks.p(w, wide_character_19( wide_character_19'first )'address, call_data);
    when 20 =>
      m_callbacks.p(w, xbitmapfile_20'address, call_data);
    when 21 =>
      m_callbacks.p(w, widget_21, call_data);
    when 22 =>
      m_callbacks.p(w, xtr5.xtnull, call_data);
    when 23 =>
      m_callbacks.p(w, xtr5.xtnull, call_data);
    when 24 =>
      m_callbacks.p(w, xtr5.xtnull, call_data);
    when others =>
      null;
  end case;
end m_cbproc;
