with demo_cbinst;
package body demo_client_data is
  procedure demo_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
  begin
    demo_cbinst( w, client_data, call_data );
  end demo_cb_proc;
end demo_client_data;
