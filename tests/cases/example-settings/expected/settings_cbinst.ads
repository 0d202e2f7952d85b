with settings_cbproc;
with settings_callbacks;
procedure settings_cbinst is new
  settings_cbproc(
    size_cb => settings_callbacks.size_cb,
    option_cb => settings_callbacks.option_cb,
    apply_cb => settings_callbacks.apply_cb,
    defaults_cb => settings_callbacks.defaults_cb,
    close_cb => settings_callbacks.close_cb,
    changed_cb => settings_callbacks.changed_cb,
    help_cb => settings_callbacks.help_cb,
    destroyed_cb => settings_callbacks.destroyed_cb );
