with demo_uil;
package demo is
  package Widgets renames demo_uil;
end demo;
