package body two_tops_callbacks is
  procedure made(
      w           : in xtr5.widget;
      client_data : in string;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end made;
  procedure shown(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end shown;
end two_tops_callbacks;
