with my_mod_cbproc;
with my_mod_callbacks;
procedure my_mod_cbinst is new
  my_mod_cbproc(
    do_it => my_mod_callbacks.do_it,
    go_on => my_mod_callbacks.go_on );
