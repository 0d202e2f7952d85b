with XlibR5;
with XtR5;
with Xm1_2_2;
with editor_client_data;
use  editor_client_data;
procedure editor_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      command_cb(w, integer_1, call_data);
    when 2 =>
      command_cb(w, integer_2, call_data);
    when 3 =>
      command_cb(w, integer_3, call_data);
    when 4 =>
      command_cb(w, integer_4, call_data);
    when 5 =>
      command_cb(w, integer_5, call_data);
    when 6 =>
      command_cb(w, integer_6, call_data);
    when 7 =>
      command_cb(w, integer_7, call_data);
    when 8 =>
      command_cb(w, integer_8, call_data);
    when 9 =>
      command_cb(w, integer_9, call_data);
    when 10 =>
      command_cb(w, integer_10, call_data);
    when 11 =>
      toggle_cb(w, integer_11, call_data);
    when 12 =>
      toggle_cb(w, integer_12, call_data);
    when 13 =>
      command_cb(w, integer_13, call_data);
    when 14 =>
      command_cb(w, integer_14, call_data);
    when 15 =>
      changed_cb(w, xtr5.xtnull, call_data);
    when 16 =>
      moved_cb(w, xtr5.xtnull, call_data);
    when others =>
      null;
  end case;
end editor_cbproc;
