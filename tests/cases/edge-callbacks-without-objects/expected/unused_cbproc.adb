with XlibR5;
with XtR5;
with Xm1_2_2;
with unused_client_data;
use  unused_client_data;
procedure unused_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when others =>
      null;
  end case;
end unused_cbproc;
