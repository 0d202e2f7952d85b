with uil_uil;
package uil is
  package Widgets renames uil_uil;
end uil;
