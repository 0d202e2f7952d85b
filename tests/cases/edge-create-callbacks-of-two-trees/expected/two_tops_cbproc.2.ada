with XlibR5;
with XtR5;
with Xm1_2_2;
with two_tops_client_data;
use  two_tops_client_data;
procedure two_tops_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      made(w, string_1, call_data);
    when 2 =>
      shown(w, integer_2, call_data);
    when 3 =>
      made(w, string_3, call_data);
    when 4 =>
      shown(w, integer_4, call_data);
    when 5 =>
      made(w, string_5, call_data);
    when 6 =>
      shown(w, integer_6, call_data);
    when 7 =>
      made(w, string_7, call_data);
    when others =>
      null;
  end case;
end two_tops_cbproc;
