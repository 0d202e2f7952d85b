with m_"";
package m is
  package Widgets renames m_"";
end m;
