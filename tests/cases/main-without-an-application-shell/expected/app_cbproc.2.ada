with XlibR5;
with XtR5;
with Xm1_2_2;
with app_client_data;
use  app_client_data;
with app_dialogs;
procedure app_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      app_dialogs.hit(w, xtr5.xtnull, call_data);
    when others =>
      null;
  end case;
end app_cbproc;
