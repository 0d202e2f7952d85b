with m_cbproc;
with m_callbacks;
procedure m_cbinst is new
  m_cbproc(
    quit_cb => m_callbacks.quit_cb,
    set_cb => m_callbacks.set_cb,
    show_cb => m_callbacks.show_cb );
