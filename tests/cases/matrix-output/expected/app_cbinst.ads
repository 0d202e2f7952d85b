with app_cbproc;
with app_callbacks;
procedure app_cbinst is new
  app_cbproc(
    quit_cb => app_callbacks.quit_cb,
    set_cb => app_callbacks.set_cb,
    pick_cb => app_callbacks.pick_cb,
    flag_cb => app_callbacks.flag_cb,
    show_cb => app_callbacks.show_cb,
    any_cb => app_callbacks.any_cb,
    bare_cb => app_callbacks.bare_cb );
