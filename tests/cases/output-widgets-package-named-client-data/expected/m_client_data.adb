with m_cbinst;
package body m_client_data is
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
  begin
    m_cbinst( w, client_data, call_data );
  end m_cb_proc;
end m_client_data;
