with App_uil;
package App is
  package Widgets renames App_uil;
end App;
