with m;
package m_mrm is
  package Widgets renames m;
end m_mrm;
