with XlibR5;
with XtR5;
with Xm1_2_2;
with cleanups_client_data;
use  cleanups_client_data;
procedure cleanups_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      show(w, compound_string_1, call_data);
    when 2 =>
      paint(w, color_2, call_data);
    when 3 =>
      lst(w, compound_string_table_3, call_data);
    when 4 =>
      paint(w, color_4, call_data);
    when 5 =>
      paint(w, color_5, call_data);
    when 6 =>
      show(w, compound_string_6, call_data);
    when others =>
      null;
  end case;
end cleanups_cbproc;
