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
      p(w, integer_1, call_data);
    when others =>
      null;
  end case;
end m_cbproc;
