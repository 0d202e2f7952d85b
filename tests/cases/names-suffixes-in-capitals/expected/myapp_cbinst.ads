with myapp_cbproc;
with myapp_CB;
procedure myapp_cbinst is new
  myapp_cbproc(
    on_hit => myapp_CB.on_hit );
