with telephone_cbinst;
package body telephone_client_data is
  procedure telephone_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
  begin
    telephone_cbinst( w, client_data, call_data );
  end telephone_cb_proc;
end telephone_client_data;
