with editor_uil;
package editor is
  package Widgets renames editor_uil;
end editor;
