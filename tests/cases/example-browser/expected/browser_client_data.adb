with browser_cbinst;
package body browser_client_data is
  procedure browser_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
  begin
    browser_cbinst( w, client_data, call_data );
  end browser_cb_proc;
end browser_client_data;
