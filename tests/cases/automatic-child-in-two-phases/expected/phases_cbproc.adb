with XlibR5;
with XtR5;
with Xm1_2_2;
with phases_client_data;
use  phases_client_data;
procedure phases_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      tell(w, integer_1'address, call_data);
    when 2 =>
      tell(w, widget_2, call_data);
    when 3 =>
      tell(w, integer_3'address, call_data);
    when 4 =>
      tell(w, string_4( string_4'first )'address, call_data);
    when 5 =>
      tell(w, xtr5.xtnull, call_data);
    when 6 =>
      tell(w, widget_6, call_data);
    when 7 =>
      tell(w, integer_7'address, call_data);
    when others =>
      null;
  end case;
end phases_cbproc;
