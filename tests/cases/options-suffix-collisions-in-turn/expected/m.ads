with m_MRM;
package m is
  package Widgets renames m_MRM;
end m;
