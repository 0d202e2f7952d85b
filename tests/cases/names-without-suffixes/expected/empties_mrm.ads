with empties_callbacks;
with empties;
package empties_mrm is
  package Widgets is new empties(
    make_it => empties_callbacks.make_it );
end empties_mrm;
