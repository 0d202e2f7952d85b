--  The parent of the generated package of widgets, which finds here what it does not declare.

with XtR5;

package Sure_Own is

   --  The box whose automatic children are looked for: the one created last.
   Self : XtR5.Widget := XtR5.XtNULL;

end Sure_Own;
