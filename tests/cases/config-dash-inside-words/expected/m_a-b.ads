with m_uil;
package m_a-b is
  package Widgets renames m_uil;
end m_a-b;
