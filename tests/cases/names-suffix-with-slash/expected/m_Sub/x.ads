with m_uil;
package m_Sub/X is
  package Widgets renames m_uil;
end m_Sub/X;
