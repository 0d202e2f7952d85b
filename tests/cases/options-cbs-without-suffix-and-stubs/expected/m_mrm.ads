with m_uil;
package m_mrm is
  package Widgets renames m_uil;
end m_mrm;
