with empties_cbproc;
with empties_callbacks;
procedure empties_cbinst is new
  empties_cbproc(
    hit => empties_callbacks.hit );
