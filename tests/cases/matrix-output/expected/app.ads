with app_callbacks;
with app_uil;
package app is
  package Widgets is new app_uil(
    make_graph => app_callbacks.make_graph );
end app;
