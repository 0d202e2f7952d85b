with XlibR5;
with XtR5;
with Xm1_2_2;
with worlds_client_data;
use  worlds_client_data;
with worlds;
procedure worlds_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      worlds.hit(w, boolean_1, call_data);
    when 2 =>
      worlds.hit(w, boolean_2, call_data);
    when others =>
      null;
  end case;
end worlds_cbproc;
