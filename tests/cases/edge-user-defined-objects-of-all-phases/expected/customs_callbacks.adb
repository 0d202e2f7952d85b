package body customs_callbacks is
  function make_dial(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget is
  begin
    return xtr5.xtnull;
  end make_dial;
  function make_row(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget is
  begin
    return xtr5.xtnull;
  end make_row;
  procedure hit(
      w           : in xtr5.widget;
      client_data : in string;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end hit;
end customs_callbacks;
