with unused_uil;
package unused is
  package Widgets renames unused_uil;
end unused;
