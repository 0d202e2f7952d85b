with hello_uil;
package hello is
  package Widgets renames hello_uil;
end hello;
