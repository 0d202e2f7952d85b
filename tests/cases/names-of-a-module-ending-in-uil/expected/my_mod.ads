with my_mod_uil;
package my_mod is
  package Widgets renames my_mod_uil;
end my_mod;
