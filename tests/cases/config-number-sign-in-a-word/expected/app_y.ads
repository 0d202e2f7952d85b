with app_x;
package app_y is
  package Widgets renames app_x;
end app_y;
