with twoways_cbproc;
with twoways_callbacks;
procedure twoways_cbinst is new
  twoways_cbproc(
    first_made => twoways_callbacks.first_made,
    other => twoways_callbacks.other );
