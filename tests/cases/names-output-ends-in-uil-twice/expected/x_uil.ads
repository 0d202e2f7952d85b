with x_uil_uil;
package x_uil is
  package Widgets renames x_uil_uil;
end x_uil;
