pragma Ada_2012;

with XlibR5;

package body XrmR5 is

   function StringToQuark (Name : String) return Quark is
      function XrmStringToQuark (Name : System.Address) return Quark;
      pragma Import (C, XrmStringToQuark, "XrmStringToQuark");

      Text : constant String := XlibR5.C_Text (Name);
   begin
      return XrmStringToQuark (Text'Address);
   end StringToQuark;

end XrmR5;
