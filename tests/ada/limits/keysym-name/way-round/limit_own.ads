with XK;

--  The widgets package is a child of this one, and so has its context clause.
package limit_own is
end limit_own;
