with editor_cbproc;
with editor_callbacks;
procedure editor_cbinst is new
  editor_cbproc(
    command_cb => editor_callbacks.command_cb,
    toggle_cb => editor_callbacks.toggle_cb,
    changed_cb => editor_callbacks.changed_cb,
    moved_cb => editor_callbacks.moved_cb );
