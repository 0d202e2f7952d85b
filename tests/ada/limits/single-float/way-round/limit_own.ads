--  The widgets package is a child of this one, and so sees the package in it.
package limit_own is
   package xlib5 is
      subtype real is Float;
   end xlib5;
end limit_own;
