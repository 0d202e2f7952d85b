with hello_cbinst;
package body hello_client_data is
  procedure hello_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
  begin
    hello_cbinst( w, client_data, call_data );
  end hello_cb_proc;
end hello_client_data;
