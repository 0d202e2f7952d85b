with demo_app_callbacks;
with demo_app_uil;
package demo_app is
  package Widgets is new demo_app_uil(
    make_graph => demo_app_callbacks.make_graph );
end demo_app;
