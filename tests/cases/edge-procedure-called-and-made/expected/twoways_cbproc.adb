with XlibR5;
with XtR5;
with Xm1_2_2;
with twoways_client_data;
use  twoways_client_data;
procedure twoways_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      first_called(w, integer_1, call_data);
    when 2 =>
      first_made(w, xtr5.xtnull, call_data);
    when 3 =>
      first_made(w, xtr5.xtnull, call_data);
    when 4 =>
      other(w, widget_4, call_data);
    when others =>
      null;
  end case;
end twoways_cbproc;
