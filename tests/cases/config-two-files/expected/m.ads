with m_two;
package m is
  package Widgets renames m_two;
end m;
