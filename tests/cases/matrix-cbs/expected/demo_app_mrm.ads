with demo_app;
with demo_app_uil;
package demo_app_mrm is
  package Widgets is new demo_app_uil(
    make_graph => demo_app.make_graph );
end demo_app_mrm;
