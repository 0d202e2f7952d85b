package body ordering_Subs is
  procedure zulu(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end zulu;
  procedure mike(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end mike;
  procedure alpha_1(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end alpha_1;
  function make_bravo(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget is
  begin
    return xtr5.xtnull;
  end make_bravo;
end ordering_Subs;
