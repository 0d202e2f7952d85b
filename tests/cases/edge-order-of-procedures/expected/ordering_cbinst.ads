with ordering_cbproc;
with ordering_Subs;
procedure ordering_cbinst is new
  ordering_cbproc(
    zulu => ordering_Subs.zulu,
    mike => ordering_Subs.mike,
    alpha_1 => ordering_Subs.alpha_1 );
