with demo_cbproc;
with demo_callbacks;
procedure demo_cbinst is new
  demo_cbproc(
    quit_cb => demo_callbacks.quit_cb );
