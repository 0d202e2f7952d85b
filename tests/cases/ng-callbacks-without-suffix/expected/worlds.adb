package body worlds is
  procedure hit(
      w           : in xtr5.widget;
      client_data : in boolean;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end hit;
  function make(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget is
  begin
    return xtr5.xtnull;
  end make;
end worlds;
