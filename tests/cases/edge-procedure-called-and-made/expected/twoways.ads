with twoways_callbacks;
with twoways_uil;
package twoways is
  package Widgets is new twoways_uil(
    first_called => twoways_callbacks.first_called );
end twoways;
