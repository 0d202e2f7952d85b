with XlibR5;
with XtR5;
with Xm1_2_2;
with hello_client_data;
use  hello_client_data;
procedure hello_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      greet_cb(w, string_1, call_data);
    when 2 =>
      quit_cb(w, integer_2, call_data);
    when others =>
      null;
  end case;
end hello_cbproc;
