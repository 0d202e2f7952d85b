with XlibR5;
with XtR5;
with Xm1_2_2;
package demo_callbacks is
  procedure quit_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  function make_graph(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
  procedure pick_cb(
      w           : in xtr5.widget;
      client_data : in string;
      call_data   : in xtr5.pointer );
  function make_axis(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
end demo_callbacks;
