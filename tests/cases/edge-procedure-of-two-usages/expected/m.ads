with m_callbacks;
with m_uil;
package m is
  package Widgets is new m_uil(
    p => m_callbacks.p );
end m;
