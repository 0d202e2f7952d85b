with two_uil;
package two is
  package Widgets renames two_uil;
end two;
