with demo_app_cbproc;
with demo_app;
procedure demo_app_cbinst is new
  demo_app_cbproc(
    quit_cb => demo_app.quit_cb,
    set_cb => demo_app.set_cb,
    pick_cb => demo_app.pick_cb,
    flag_cb => demo_app.flag_cb,
    show_cb => demo_app.show_cb,
    any_cb => demo_app.any_cb,
    bare_cb => demo_app.bare_cb );
