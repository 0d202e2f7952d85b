with XlibR5;
with XtR5;
with Xm1_2_2;
with dialogs_client_data;
use  dialogs_client_data;
procedure dialogs_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      show_dialog_cb(w, integer_1, call_data);
    when 2 =>
      show_dialog_cb(w, integer_2, call_data);
    when 3 =>
      show_dialog_cb(w, integer_3, call_data);
    when 4 =>
      show_dialog_cb(w, integer_4, call_data);
    when 5 =>
      show_dialog_cb(w, integer_5, call_data);
    when 6 =>
      show_dialog_cb(w, integer_6, call_data);
    when 7 =>
      ok_cb(w, integer_7, call_data);
    when 8 =>
      ok_cb(w, integer_8, call_data);
    when 9 =>
      cancel_cb(w, integer_9, call_data);
    when 10 =>
      help_cb(w, string_10, call_data);
    when 11 =>
      ok_cb(w, integer_11, call_data);
    when 12 =>
      cancel_cb(w, integer_12, call_data);
    when 13 =>
      name_changed_cb(w, xtr5.xtnull, call_data);
    when 14 =>
      ok_cb(w, integer_14, call_data);
    when 15 =>
      cancel_cb(w, integer_15, call_data);
    when 16 =>
      help_cb(w, string_16, call_data);
    when 17 =>
      help_cb(w, string_17, call_data);
    when 18 =>
      copies_changed_cb(w, xtr5.xtnull, call_data);
    when 19 =>
      ok_cb(w, integer_19, call_data);
    when 20 =>
      cancel_cb(w, integer_20, call_data);
    when 21 =>
      help_cb(w, string_21, call_data);
    when 22 =>
      cancel_cb(w, integer_22, call_data);
    when others =>
      null;
  end case;
end dialogs_cbproc;
