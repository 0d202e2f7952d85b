with browser_uil;
package browser is
  package Widgets renames browser_uil;
end browser;
