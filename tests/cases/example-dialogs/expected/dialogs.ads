with dialogs_uil;
package dialogs is
  package Widgets renames dialogs_uil;
end dialogs;
