with dialogs_cbinst;
package body dialogs_client_data is
  procedure dialogs_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
  begin
    dialogs_cbinst( w, client_data, call_data );
  end dialogs_cb_proc;
end dialogs_client_data;
