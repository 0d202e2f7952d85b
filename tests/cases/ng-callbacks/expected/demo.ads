with demo_callbacks;
with demo_uil;
package demo is
  package Widgets is new demo_uil(
    make_graph => demo_callbacks.make_graph,
    make_axis => demo_callbacks.make_axis );
end demo;
