with telephone_cbproc;
with telephone_callbacks;
procedure telephone_cbinst is new
  telephone_cbproc(
    digit_proc => telephone_callbacks.digit_proc,
    call_proc => telephone_callbacks.call_proc,
    hang_up_proc => telephone_callbacks.hang_up_proc,
    number_proc => telephone_callbacks.number_proc );
