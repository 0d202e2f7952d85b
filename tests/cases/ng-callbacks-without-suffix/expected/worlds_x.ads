with worlds;
with worlds_uil;
package worlds_x is
  package Widgets is new worlds_uil(
    make => worlds.make );
end worlds_x;
