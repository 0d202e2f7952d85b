with -app_uil;
package -app is
  package Widgets renames -app_uil;
end -app;
