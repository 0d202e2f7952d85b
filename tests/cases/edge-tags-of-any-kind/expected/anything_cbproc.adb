with XlibR5;
with XtR5;
with Xm1_2_2;
with anything_client_data;
use  anything_client_data;
with anything_callbacks;
procedure anything_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      anything_callbacks.p(w, xtr5.xtnull, call_data);
    when 2 =>
      anything_callbacks.p(w, asciz_string_table_2( asciz_string_table_2'first )'address, call_data);
    when 3 =>
      anything_callbacks.p(w, boolean_3'address, call_data);
    when 4 =>
      anything_callbacks.p(w, class_rec_name_4, call_data);
    when 5 =>
      anything_callbacks.p(w, color_5'address, call_data);
    when 6 =>
      anything_callbacks.p(w, compound_string_6, call_data);
    when 7 =>
      anything_callbacks.p(w, compound_string_table_7( compound_string_table_7'first )'address, call_data);
    when 8 =>
      anything_callbacks.p(w, float_8'address, call_data);
    when 9 =>
      anything_callbacks.p(w, font_9, call_data);
    when 10 =>
      anything_callbacks.p(w, fontset_10, call_data);
    when 11 =>
      anything_callbacks.p(w, font_table_11, call_data);
    when 12 =>
      anything_callbacks.p(w, icon_12'address, call_data);
    when 13 =>
      anything_callbacks.p(w, integer_13'address, call_data);
    when 14 =>
      anything_callbacks.p(w, integer_table_14( integer_table_14'first )'address, call_data);
    when 15 =>
      anything_callbacks.p(w, keysym_15'address, call_data);
    when 16 =>
      anything_callbacks.p(w, color_16'address, call_data);
    when 17 =>
      anything_callbacks.p(w, single_float_17'address, call_data);
    when 18 =>
      anything_callbacks.p(w, string_18( string_18'first )'address, call_data);
    when 19 =>
      anything_callbacks.p(w, translation_table_19, call_data);
    when 20 =>
      anything_callbacks.p(w, wide_character_20( wide_character_20'first )'address, call_data);
    when 21 =>
      anything_callbacks.p(w, xbitmapfile_21'address, call_data);
    when 22 =>
      anything_callbacks.p(w, widget_22, call_data);
    when others =>
      null;
  end case;
end anything_cbproc;
