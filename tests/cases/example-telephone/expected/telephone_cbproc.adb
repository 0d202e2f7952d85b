with XlibR5;
with XtR5;
with Xm1_2_2;
with telephone_client_data;
use  telephone_client_data;
procedure telephone_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      call_proc(w, xtr5.xtnull, call_data);
    when 2 =>
      number_proc(w, xtr5.xtnull, call_data);
    when 3 =>
      digit_proc(w, integer_3, call_data);
    when 4 =>
      digit_proc(w, integer_4, call_data);
    when 5 =>
      digit_proc(w, integer_5, call_data);
    when 6 =>
      digit_proc(w, integer_6, call_data);
    when 7 =>
      digit_proc(w, integer_7, call_data);
    when 8 =>
      digit_proc(w, integer_8, call_data);
    when 9 =>
      digit_proc(w, integer_9, call_data);
    when 10 =>
      digit_proc(w, integer_10, call_data);
    when 11 =>
      digit_proc(w, integer_11, call_data);
    when 12 =>
      digit_proc(w, integer_12, call_data);
    when 13 =>
      digit_proc(w, integer_13, call_data);
    when 14 =>
      digit_proc(w, integer_14, call_data);
    when 15 =>
      call_proc(w, xtr5.xtnull, call_data);
    when 16 =>
      hang_up_proc(w, xtr5.xtnull, call_data);
    when others =>
      null;
  end case;
end telephone_cbproc;
