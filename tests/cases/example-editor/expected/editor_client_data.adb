with editor_cbinst;
package body editor_client_data is
  procedure editor_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
  begin
    editor_cbinst( w, client_data, call_data );
  end editor_cb_proc;
end editor_client_data;
