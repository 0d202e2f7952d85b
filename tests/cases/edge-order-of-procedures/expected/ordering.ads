with ordering_Subs;
with ordering_uil;
package ordering is
  package Widgets is new ordering_uil(
    make_bravo => ordering_Subs.make_bravo );
end ordering;
