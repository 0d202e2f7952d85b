with XlibR5;
with XtR5;
with Xm1_2_2;
with panes_client_data;
use  panes_client_data;
procedure panes_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      hit(w, integer_1, call_data);
    when 2 =>
      hit(w, integer_2, call_data);
    when 3 =>
      hit(w, integer_3, call_data);
    when 4 =>
      hit(w, integer_4, call_data);
    when 5 =>
      hit(w, integer_5, call_data);
    when 6 =>
      hit(w, integer_6, call_data);
    when 7 =>
      hit(w, integer_7, call_data);
    when 8 =>
      hit(w, integer_8, call_data);
    when others =>
      null;
  end case;
end panes_cbproc;
