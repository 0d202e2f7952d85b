with XlibR5;
with XtR5;
with Xm1_2_2;
with stubs_client_data;
use  stubs_client_data;
procedure stubs_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      p_asciz(w, asciz_string_table_1, call_data);
    when 2 =>
      p_boolean(w, boolean_2, call_data);
    when 3 =>
      p_class(w, class_rec_name_3, call_data);
    when 4 =>
      p_color(w, color_4, call_data);
    when 5 =>
      p_string(w, compound_string_5, call_data);
    when 6 =>
      p_table(w, compound_string_table_6, call_data);
    when 7 =>
      p_float(w, float_7, call_data);
    when 8 =>
      p_font(w, font_8, call_data);
    when 9 =>
      p_fontset(w, fontset_9, call_data);
    when 10 =>
      p_fonts(w, font_table_10, call_data);
    when 11 =>
      p_icon(w, icon_11, call_data);
    when 12 =>
      p_integer(w, integer_12, call_data);
    when 13 =>
      p_integers(w, integer_table_13, call_data);
    when 14 =>
      p_keysym(w, keysym_14, call_data);
    when 15 =>
      p_pixmap(w, icon_15, call_data);
    when 16 =>
      p_rgb(w, color_16, call_data);
    when 17 =>
      p_single(w, single_float_17, call_data);
    when 18 =>
      p_text(w, string_18, call_data);
    when 19 =>
      p_keys(w, translation_table_19, call_data);
    when 20 =>
      p_wide(w, wide_character_20, call_data);
    when 21 =>
      p_bitmap(w, xbitmapfile_21, call_data);
    when 22 =>
      p_widget(w, widget_22, call_data);
    when 23 =>
      p_any(w, integer_23'address, call_data);
    when 24 =>
      p_void(w, xtr5.xtnull, call_data);
    when 25 =>
      p_none(w, xtr5.xtnull, call_data);
    when 26 =>
      p_none(w, xtr5.xtnull, call_data);
    when 27 =>
      p_any(w, xtr5.xtnull, call_data);
    when 28 =>
      p_any(w, xtr5.xtnull, call_data);
    when 29 =>
      p_void(w, xtr5.xtnull, call_data);
    when 30 =>
      p_pixmap(w, xbitmapfile_30, call_data);
    when 31 =>
      p_rgb(w, color_31, call_data);
    when others =>
      null;
  end case;
end stubs_cbproc;
