with XlibR5;
with XtR5;
with Xm1_2_2;
with reasons_client_data;
use  reasons_client_data;
procedure reasons_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      link(w, widget_1, call_data);
    when 2 =>
      note(w, float_2'address, call_data);
    when 3 =>
      link(w, widget_3, call_data);
    when 4 =>
      note(w, xtr5.xtnull, call_data);
    when 5 =>
      plain(w, xtr5.xtnull, call_data);
    when 6 =>
      plain(w, xtr5.xtnull, call_data);
    when 7 =>
      note(w, xtr5.xtnull, call_data);
    when 8 =>
      note(w, string_8( string_8'first )'address, call_data);
    when 9 =>
      note(w, widget_9, call_data);
    when 10 =>
      plain(w, xtr5.xtnull, call_data);
    when 11 =>
      note(w, boolean_11'address, call_data);
    when 12 =>
      note(w, xtr5.xtnull, call_data);
    when 13 =>
      note(w, widget_13, call_data);
    when 14 =>
      note(w, integer_14'address, call_data);
    when others =>
      null;
  end case;
end reasons_cbproc;
