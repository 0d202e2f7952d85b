with my_module_cbproc;
with my_module_callbacks;
procedure my_module_cbinst is new
  my_module_cbproc(
    quit_cb => my_module_callbacks.quit_cb );
