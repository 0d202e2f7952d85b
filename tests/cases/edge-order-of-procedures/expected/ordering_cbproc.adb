with XlibR5;
with XtR5;
with Xm1_2_2;
with ordering_client_data;
use  ordering_client_data;
procedure ordering_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      alpha_1(w, string_1( string_1'first )'address, call_data);
    when 2 =>
      zulu(w, integer_2, call_data);
    when 3 =>
      mike(w, xtr5.xtnull, call_data);
    when others =>
      null;
  end case;
end ordering_cbproc;
