with demo_cbproc;
with demo_callbacks;
procedure demo_cbinst is new
  demo_cbproc(
    menu_cb => demo_callbacks.menu_cb,
    map_cb => demo_callbacks.map_cb,
    help_cb => demo_callbacks.help_cb );
