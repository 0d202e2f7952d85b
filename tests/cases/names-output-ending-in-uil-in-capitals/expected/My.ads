with My_uil;
package My is
  package Widgets renames My_uil;
end My;
