package body demo_callbacks is
  procedure quit_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end quit_cb;
  function make_graph(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget is
  begin
    return xtr5.xtnull;
  end make_graph;
  procedure pick_cb(
      w           : in xtr5.widget;
      client_data : in string;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end pick_cb;
  function make_axis(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget is
  begin
    return xtr5.xtnull;
  end make_axis;
end demo_callbacks;
