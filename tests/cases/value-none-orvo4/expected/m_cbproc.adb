with XlibR5;
with XtR5;
with Xm1_2_2;
with m_client_data;
use  m_client_data;
procedure m_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      bare(w, xtr5.xtnull, call_data);
    when 2 =>
      bare(w, xtr5.xtnull, call_data);
    when 3 =>
      empty(w, xtr5.xtnull, call_data);
    when 4 =>
      open(w, xtr5.xtnull, call_data);
    when 5 =>
      open(w, xtr5.xtnull, call_data);
    when 6 =>
      open(w, xtr5.xtnull, call_data);
    when 7 =>
      bare(w, xtr5.xtnull, call_data);
    when 8 =>
      empty(w, xtr5.xtnull, call_data);
    when 9 =>
      open(w, xtr5.xtnull, call_data);
    when 10 =>
      open(w, integer_10'address, call_data);
    when others =>
      null;
  end case;
end m_cbproc;
