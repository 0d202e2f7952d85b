with app_cbproc;
package body app_client_data is
  procedure app_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
  begin
    app_cbproc( w, client_data, call_data );
  end app_cb_proc;
end app_client_data;
