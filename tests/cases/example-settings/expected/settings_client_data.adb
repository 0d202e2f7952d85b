with settings_cbinst;
package body settings_client_data is
  procedure settings_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
  begin
    settings_cbinst( w, client_data, call_data );
  end settings_cb_proc;
end settings_client_data;
