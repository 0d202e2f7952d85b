with _uil;
package  is
  package Widgets renames _uil;
end ;
