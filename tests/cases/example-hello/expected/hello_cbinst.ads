with hello_cbproc;
with hello_callbacks;
procedure hello_cbinst is new
  hello_cbproc(
    greet_cb => hello_callbacks.greet_cb,
    quit_cb => hello_callbacks.quit_cb );
