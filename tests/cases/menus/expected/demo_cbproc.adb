with XlibR5;
with XtR5;
with Xm1_2_2;
with demo_client_data;
use  demo_client_data;
procedure demo_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      map_cb(w, xtr5.xtnull, call_data);
    when 2 =>
      map_cb(w, xtr5.xtnull, call_data);
    when 3 =>
      menu_cb(w, integer_3, call_data);
    when 4 =>
      menu_cb(w, integer_4, call_data);
    when 5 =>
      menu_cb(w, integer_5, call_data);
    when 6 =>
      help_cb(w, xtr5.xtnull, call_data);
    when 7 =>
      menu_cb(w, integer_7, call_data);
    when others =>
      null;
  end case;
end demo_cbproc;
