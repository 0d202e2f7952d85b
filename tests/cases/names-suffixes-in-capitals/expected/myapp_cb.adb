package body myapp_CB is
  function make_dial(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget is
  begin
    return xtr5.xtnull;
  end make_dial;
  procedure on_hit(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end on_hit;
end myapp_CB;
