with XlibR5;
with XtR5;
with Xm1_2_2;
with sharings_client_data;
use  sharings_client_data;
procedure sharings_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      hit(w, integer_1, call_data);
    when 2 =>
      say(w, string_2, call_data);
    when 3 =>
      hit(w, integer_3, call_data);
    when 4 =>
      hit(w, integer_4, call_data);
    when 5 =>
      say(w, string_5, call_data);
    when 6 =>
      hit(w, integer_6, call_data);
    when 7 =>
      hit(w, integer_7, call_data);
    when 8 =>
      say(w, string_8, call_data);
    when 9 =>
      hit(w, integer_9, call_data);
    when 10 =>
      say(w, string_10, call_data);
    when 11 =>
      hit(w, integer_11, call_data);
    when 12 =>
      say(w, string_12, call_data);
    when 13 =>
      hit(w, integer_13, call_data);
    when 14 =>
      say(w, string_14, call_data);
    when 15 =>
      hit(w, integer_15, call_data);
    when 16 =>
      hit(w, integer_16, call_data);
    when 17 =>
      say(w, string_17, call_data);
    when 18 =>
      hit(w, integer_18, call_data);
    when 19 =>
      say(w, string_19, call_data);
    when 20 =>
      hit(w, integer_20, call_data);
    when others =>
      null;
  end case;
end sharings_cbproc;
