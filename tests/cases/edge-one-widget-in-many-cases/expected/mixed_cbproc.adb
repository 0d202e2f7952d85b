with XlibR5;
with XtR5;
with Xm1_2_2;
with mixed_client_data;
use  mixed_client_data;
procedure mixed_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      hit(w, widget_1, call_data);
    when 2 =>
      hit(w, widget_2, call_data);
    when 3 =>
      hit(w, widget_3, call_data);
    when others =>
      null;
  end case;
end mixed_cbproc;
