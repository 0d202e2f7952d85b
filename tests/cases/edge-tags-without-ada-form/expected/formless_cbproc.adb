with XlibR5;
with XtR5;
with Xm1_2_2;
with formless_client_data;
use  formless_client_data;
procedure formless_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      of_argument(w, , call_data);
    when 2 =>
      of_colors(w, , call_data);
    when 3 =>
      of_reason(w, , call_data);
    when others =>
      null;
  end case;
end formless_cbproc;
