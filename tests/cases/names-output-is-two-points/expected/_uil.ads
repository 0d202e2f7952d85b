with _uil_uil;
package _uil is
  package Widgets renames _uil_uil;
end _uil;
