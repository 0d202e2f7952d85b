with XlibR5;
with XtR5;
with Xm1_2_2;
package demo_app_callbacks is
  procedure quit_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  procedure set_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  procedure pick_cb(
      w           : in xtr5.widget;
      client_data : in string;
      call_data   : in xtr5.pointer );
  procedure flag_cb(
      w           : in xtr5.widget;
      client_data : in boolean;
      call_data   : in xtr5.pointer );
  procedure show_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  procedure any_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  function make_graph(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
  procedure bare_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
end demo_app_callbacks;
