with XlibR5;
with XtR5;
with Xm1_2_2;
with tagged_client_data;
use  tagged_client_data;
with tagged_sub;
procedure tagged_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      tagged_sub.by_name(w, keysym_1, call_data);
    when 2 =>
      tagged_sub.by_name(w, keysym_2, call_data);
    when 3 =>
      tagged_sub.by_nothing(w, xtr5.xtnull, call_data);
    when 4 =>
      tagged_sub.by_widget(w, widget_4, call_data);
    when 5 =>
      tagged_sub.by_any(w, class_rec_name_5, call_data);
    when 6 =>
      tagged_sub.by_any(w, xtr5.xtnull, call_data);
    when 7 =>
      tagged_sub.by_nothing(w, xtr5.xtnull, call_data);
    when 8 =>
      tagged_sub.by_table(w, integer_table_8, call_data);
    when 9 =>
      tagged_sub.by_widget(w, widget_9, call_data);
    when 10 =>
      tagged_sub.by_any(w, class_rec_name_10, call_data);
    when 11 =>
      tagged_sub.by_any(w, xtr5.xtnull, call_data);
    when 12 =>
      tagged_sub.by_nothing(w, xtr5.xtnull, call_data);
    when 13 =>
      tagged_sub.by_any(w, widget_13, call_data);
    when others =>
      null;
  end case;
end tagged_cbproc;
