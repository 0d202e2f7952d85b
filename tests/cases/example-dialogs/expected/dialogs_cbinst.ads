with dialogs_cbproc;
with dialogs_callbacks;
procedure dialogs_cbinst is new
  dialogs_cbproc(
    show_dialog_cb => dialogs_callbacks.show_dialog_cb,
    ok_cb => dialogs_callbacks.ok_cb,
    cancel_cb => dialogs_callbacks.cancel_cb,
    help_cb => dialogs_callbacks.help_cb,
    name_changed_cb => dialogs_callbacks.name_changed_cb,
    copies_changed_cb => dialogs_callbacks.copies_changed_cb );
