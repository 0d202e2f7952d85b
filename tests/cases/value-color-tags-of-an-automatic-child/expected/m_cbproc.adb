with XlibR5;
with XtR5;
with Xm1_2_2;
with m_client_data;
use  m_client_data;
with m_callbacks;
procedure m_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      m_callbacks.r(w, icon_1, call_data);
    when 2 =>
      m_callbacks.p(w, color_2, call_data);
    when 3 =>
      m_callbacks.q(w, icon_3'address, call_data);
    when 4 =>
      m_callbacks.q(w, widget_4, call_data);
    when 5 =>
      m_callbacks.r(w, xbitmapfile_5, call_data);
    when others =>
      null;
  end case;
end m_cbproc;
