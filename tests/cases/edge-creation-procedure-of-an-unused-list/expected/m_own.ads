with m_callbacks;
with m_uil;
package m_own is
  package Widgets is new m_uil(
    make_it => m_callbacks.make_it,
    make_other => m_callbacks.make_other );
end m_own;
