with demo_app_cbproc;
with demo_app_callbacks;
procedure demo_app_cbinst is new
  demo_app_cbproc(
    quit_cb => demo_app_callbacks.quit_cb,
    set_cb => demo_app_callbacks.set_cb,
    pick_cb => demo_app_callbacks.pick_cb,
    flag_cb => demo_app_callbacks.flag_cb,
    show_cb => demo_app_callbacks.show_cb,
    any_cb => demo_app_callbacks.any_cb,
    bare_cb => demo_app_callbacks.bare_cb );
