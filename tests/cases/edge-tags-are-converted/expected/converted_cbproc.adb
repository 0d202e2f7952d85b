with XlibR5;
with XtR5;
with Xm1_2_2;
with converted_client_data;
use  converted_client_data;
procedure converted_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      p_boolean(w, boolean_1, call_data);
    when 2 =>
      p_integer(w, integer_2, call_data);
    when 3 =>
      p_single(w, single_float_3, call_data);
    when 4 =>
      p_float(w, float_4, call_data);
    when 5 =>
      p_label(w, compound_string_5, call_data);
    when 6 =>
      p_rgb(w, color_6, call_data);
    when 7 =>
      p_integer(w, integer_7, call_data);
    when others =>
      null;
  end case;
end converted_cbproc;
