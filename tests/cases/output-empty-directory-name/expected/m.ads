with m_uil;
package m is
  package Widgets renames m_uil;
end m;
