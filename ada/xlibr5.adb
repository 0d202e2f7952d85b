--  The functions of the X library that take or give strings.

pragma Ada_2012;

with Ada.Command_Line;

package body XlibR5 is

   package C renames Interfaces.C;
   package CS renames Interfaces.C.Strings;
   use type C.int;
   use type CS.chars_ptr;

   type C_Strings is array (C.size_t) of CS.chars_ptr;
   type C_Strings_Ptr is access all C_Strings;
   pragma Convention (C, C_Strings_Ptr);

   function C_Text (Text : String) return String is
   begin
      for I in Text'Range loop
         if Text (I) = ASCII.NUL then
            return Text (Text'First .. I);
         end if;
      end loop;
      return Text & ASCII.NUL;
   end C_Text;

   function Ada_Text (Text : CS.chars_ptr) return String is
     (if Text = CS.Null_Ptr then "" else CS.Value (Text));

   function GetArguments return StringList_Ptr is
      use Ada.Command_Line;
      List : constant StringList_Ptr := new StringList (1 .. Argument_Count + 1);
   begin
      List (1) := new String'(Command_Name);
      for I in 1 .. Argument_Count loop
         List (I + 1) := new String'(Argument (I));
      end loop;
      return List;
   end GetArguments;

   procedure AllocNamedColor
     (Dpy    : Display;
      Map    : Colormap;
      Name   : String;
      Screen : out Color;
      Exact  : out Color;
      Status : out Boolean)
   is
      function XAllocNamedColor
        (Dpy           : Display;
         Map           : Colormap;
         Name          : System.Address;
         Screen, Exact : access Color) return C.int;
      pragma Import (C, XAllocNamedColor, "XAllocNamedColor");

      Text                    : constant String := C_Text (Name);
      Screen_Color, Exact_Color : aliased Color;
   begin
      Status :=
        XAllocNamedColor (Dpy, Map, Text'Address, Screen_Color'Access, Exact_Color'Access) /= 0;
      Screen := Screen_Color;
      Exact := Exact_Color;
   end AllocNamedColor;

   function LoadQueryFont (Dpy : Display; Name : String) return FontStruct_Ptr is
      function XLoadQueryFont (Dpy : Display; Name : System.Address) return FontStruct_Ptr;
      pragma Import (C, XLoadQueryFont, "XLoadQueryFont");

      Text : constant String := C_Text (Name);
   begin
      return XLoadQueryFont (Dpy, Text'Address);
   end LoadQueryFont;

   procedure CreateFontSet
     (Dpy     : Display;
      Names   : String;
      Missing : out StringList_Ptr;
      Count   : out Int;
      Default : out String_Ptr;
      Set     : out FontSet)
   is
      function XCreateFontSet
        (Dpy     : Display;
         Names   : System.Address;
         Missing : access C_Strings_Ptr;
         Count   : access C.int;
         Default : access CS.chars_ptr) return FontSet;
      pragma Import (C, XCreateFontSet, "XCreateFontSet");

      procedure XFreeStringList (List : C_Strings_Ptr);
      pragma Import (C, XFreeStringList, "XFreeStringList");

      Text      : constant String := C_Text (Names);
      C_Missing : aliased C_Strings_Ptr := null;
      C_Count   : aliased C.int := 0;
      C_Default : aliased CS.chars_ptr := CS.Null_Ptr;
   begin
      Set :=
        XCreateFontSet (Dpy, Text'Address, C_Missing'Access, C_Count'Access, C_Default'Access);
      Count := Int (C_Count);
      Default := new String'(Ada_Text (C_Default));
      Missing := null;
      if C_Missing /= null then
         Missing := new StringList (1 .. Count);
         for I in Missing'Range loop
            Missing (I) := new String'(Ada_Text (C_Missing (C.size_t (I - 1))));
         end loop;
         XFreeStringList (C_Missing);
      end if;
   end CreateFontSet;

   function DestroyImage (Img : Image_Ptr) return Int is
      function XDestroyImage (Img : Image_Ptr) return C.int;
      pragma Import (C, XDestroyImage, "XDestroyImage");
   begin
      --  The library would hand the data to C's free.
      Img.Data := System.Null_Address;
      return Int (XDestroyImage (Img));
   end DestroyImage;

end XlibR5;
