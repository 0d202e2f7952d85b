with auil_uil;
package auil is
  package Widgets renames auil_uil;
end auil;
