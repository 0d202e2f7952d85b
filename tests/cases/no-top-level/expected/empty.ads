with empty_uil;
package empty is
  package Widgets renames empty_uil;
end empty;
