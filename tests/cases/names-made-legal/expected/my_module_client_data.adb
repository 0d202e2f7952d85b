with my_module_cbinst;
package body my_module_client_data is
  procedure my_module_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
  begin
    my_module_cbinst( w, client_data, call_data );
  end my_module_cb_proc;
end my_module_client_data;
