with XtR5;

--  The widgets package is a child of this one, and so sees the variable.
package limit_own is
   self : XtR5.Widget := XtR5.XtNULL;
end limit_own;
