with demo_cbproc;
with demo_callbacks;
procedure demo_cbinst is new
  demo_cbproc(
    arm_cb => demo_callbacks.arm_cb,
    set_cb => demo_callbacks.set_cb );
