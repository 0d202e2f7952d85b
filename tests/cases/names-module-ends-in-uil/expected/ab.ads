with ab_uil;
package ab is
  package Widgets renames ab_uil;
end ab;
