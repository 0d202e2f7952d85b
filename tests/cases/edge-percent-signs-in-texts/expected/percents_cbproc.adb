with XlibR5;
with XtR5;
with Xm1_2_2;
with percents_client_data;
use  percents_client_data;
procedure percents_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      tell(w, string_1( string_1'first )'address, call_data);
    when 2 =>
      tell(w, keysym_2'address, call_data);
    when 3 =>
      tell(w, icon_3'address, call_data);
    when others =>
      null;
  end case;
end percents_cbproc;
