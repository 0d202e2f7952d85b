with demo_app_cbproc;
with demo_app_x;
procedure demo_app_cbinst is new
  demo_app_cbproc(
    quit_cb => demo_app_x.quit_cb,
    set_cb => demo_app_x.set_cb,
    pick_cb => demo_app_x.pick_cb,
    flag_cb => demo_app_x.flag_cb,
    show_cb => demo_app_x.show_cb,
    any_cb => demo_app_x.any_cb,
    bare_cb => demo_app_x.bare_cb );
