with XlibR5;
with XtR5;
with Xm1_2_2;
with my_module_client_data;
use  my_module_client_data;
procedure my_module_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      quit_cb(w, xtr5.xtnull, call_data);
    when others =>
      null;
  end case;
end my_module_cbproc;
