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
      pc(w, color_1, call_data);
    when 2 =>
      pr(w, color_2, call_data);
    when 3 =>
      px(w, xbitmapfile_3, call_data);
    when 4 =>
      pi(w, icon_4, call_data);
    when others =>
      null;
  end case;
end m_cbproc;
