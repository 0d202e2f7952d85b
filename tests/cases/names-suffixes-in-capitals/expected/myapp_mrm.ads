with myapp_CB;
with myapp_UIL2;
package myapp_Mrm is
  package Widgets is new myapp_UIL2(
    make_dial => myapp_CB.make_dial );
end myapp_Mrm;
