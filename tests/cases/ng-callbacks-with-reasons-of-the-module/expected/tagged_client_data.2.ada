with tagged_cbproc;
package body tagged_client_data is
  procedure tagged_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
  begin
    tagged_cbproc( w, client_data, call_data );
  end tagged_cb_proc;
end tagged_client_data;
