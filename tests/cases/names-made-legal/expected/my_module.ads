with my_module_callbacks;
with my_module_uil;
package my_module is
  package Widgets is new my_module_uil(
    make_it => my_module_callbacks.make_it );
end my_module;
