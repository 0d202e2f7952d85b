--  The toolkit's constants that generated main procedures use.

pragma Ada_2012;

package Xt is

   type GrabKind is (GrabNone, GrabNonexclusive, GrabExclusive);
   pragma Convention (C, GrabKind);

end Xt;
