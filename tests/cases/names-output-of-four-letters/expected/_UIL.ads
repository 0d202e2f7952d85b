with _UIL_uil;
package _UIL is
  package Widgets renames _UIL_uil;
end _UIL;
