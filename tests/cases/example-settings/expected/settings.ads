with settings_uil;
package settings is
  package Widgets renames settings_uil;
end settings;
