with two_tops_cbproc;
with two_tops_callbacks;
procedure two_tops_cbinst is new
  two_tops_cbproc(
    made => two_tops_callbacks.made,
    shown => two_tops_callbacks.shown );
