with customs_callbacks;
with customs_uil;
package customs is
  package Widgets is new customs_uil(
    make_dial => customs_callbacks.make_dial,
    make_row => customs_callbacks.make_row );
end customs;
