package body telephone_callbacks is
  procedure digit_proc(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end digit_proc;
  procedure call_proc(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end call_proc;
  procedure hang_up_proc(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end hang_up_proc;
  procedure number_proc(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end number_proc;
end telephone_callbacks;
