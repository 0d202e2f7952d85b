with demo_app_callbacks;
with demo_app;
package demo_app_mrm is
  package Widgets is new demo_app(
    make_graph => demo_app_callbacks.make_graph );
end demo_app_mrm;
