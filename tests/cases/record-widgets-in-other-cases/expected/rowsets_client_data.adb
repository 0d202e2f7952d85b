with rowsets_cbinst;
package body rowsets_client_data is
  procedure rowsets_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
  begin
    rowsets_cbinst( w, client_data, call_data );
  end rowsets_cb_proc;
end rowsets_client_data;
