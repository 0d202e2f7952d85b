with telephone_uil;
package telephone is
  package Widgets renames telephone_uil;
end telephone;
