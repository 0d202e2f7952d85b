with worlds_cbproc;
package body worlds_client_data is
  procedure worlds_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
  begin
    worlds_cbproc( w, client_data, call_data );
  end worlds_cb_proc;
end worlds_client_data;
