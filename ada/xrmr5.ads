--  The resource manager's part of starting a program: the table of command line options.

pragma Ada_2012;

with Interfaces.C.Strings;
with System;

package XrmR5 is

   type Quark is new Interfaces.C.int;

   type OptionKind is
     (OptionNoArg, OptionIsArg, OptionStickyArg, OptionSepArg, OptionResArg, OptionSkipArg,
      OptionSkipLine, OptionSkipNArgs);
   pragma Convention (C, OptionKind);

   type OptionDescRec is record
      Option    : Interfaces.C.Strings.chars_ptr;
      Specifier : Interfaces.C.Strings.chars_ptr;
      ArgKind   : OptionKind;
      Value     : System.Address;
   end record;
   pragma Convention (C, OptionDescRec);

   type OptionDescList is array (Integer range <>) of aliased OptionDescRec;

   --  A name's number, the same for the same name as long as the program runs.
   function StringToQuark (Name : String) return Quark;

   --  Where the name of a quark stands, as a C string that is never freed.
   function QuarkToAddress (Name : Quark) return System.Address;
   pragma Import (C, QuarkToAddress, "XrmQuarkToString");

end XrmR5;
