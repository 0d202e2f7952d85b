with m_cbproc;
with m_callbacks;
procedure m_cbinst is new
  m_cbproc(
    set_cb => m_callbacks.set_cb );
