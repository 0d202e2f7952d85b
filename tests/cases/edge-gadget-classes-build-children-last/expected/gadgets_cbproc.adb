with XlibR5;
with XtR5;
with Xm1_2_2;
with gadgets_client_data;
use  gadgets_client_data;
procedure gadgets_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      hit(w, xtr5.xtnull, call_data);
    when 2 =>
      hit(w, xtr5.xtnull, call_data);
    when others =>
      null;
  end case;
end gadgets_cbproc;
