with demo_cbproc;
with demo_callbacks;
procedure demo_cbinst is new
  demo_cbproc(
    press_cb => demo_callbacks.press_cb );
