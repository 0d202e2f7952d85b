with tables_uil;
package tables is
  package Widgets renames tables_uil;
end tables;
