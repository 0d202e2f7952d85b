--  Motif's types and string functions, by hand.  Package Xm1_2_2, which is generated and which
--  generated units name, takes them from here; of this package itself those units name only the
--  two kinds of fonts.

pragma Ada_2012;

with System;
with XlibR5;
with XtR5;

package Xm is

   subtype XmString is System.Address;
   subtype FontList is System.Address;
   subtype FontListEntry is System.Address;
   type XmStringList is array (Integer range <>) of aliased XmString;

   type FontType is (Font_Is_Font, Font_Is_Fontset);
   pragma Convention (C, FontType);

   --  The head of what every callback gets as its call data.
   type AnyCallbackStruct is record
      Reason : XlibR5.Int;
      Event  : XlibR5.Event_Ptr;
   end record;
   pragma Convention (C, AnyCallbackStruct);

   --  One segment of a compound string.  The result is freed with StringFree.
   function StringSegmentCreate
     (Text      : String;
      Tag       : String;
      Direction : Integer;
      Separator : Boolean) return XmString;

   --  The whole text, newlines as separators, in the given tag.
   function StringCreateLtoR (Text : String; Tag : String) return XmString;

   function StringCopy (Text : XmString) return XmString;
   function StringConcat (Left, Right : XmString) return XmString;
   procedure StringFree (Text : XmString);

   function FontListEntryCreate
     (Tag : String; Kind : FontType; Font : System.Address) return FontListEntry;
   function FontListAppendEntry (List : FontList; Item : FontListEntry) return FontList;
   procedure FontListFree (List : FontList);

   Unspecified_Pixmap : constant XlibR5.Pixmap := 2;

   --  The image of a file (or of Motif's cache) in the two colours; Unspecified_Pixmap when there
   --  is none.
   function GetPixmapByDepth
     (Screen     : XlibR5.Screen_Ptr;
      Name       : String;
      Foreground : XlibR5.Pixel;
      Background : XlibR5.Pixel;
      Depth      : Integer) return XlibR5.Pixmap;

   --  What a text widget or text field holds, and its replacement.
   function TextFieldGetString (W : XtR5.Widget) return String;
   procedure TextFieldSetString (W : XtR5.Widget; Text : String);
   function TextGetString (W : XtR5.Widget) return String;
   procedure TextSetString (W : XtR5.Widget; Text : String);

   function ToggleButtonGetState (W : XtR5.Widget) return Boolean;
   procedure ToggleButtonSetState (W : XtR5.Widget; State, Notify : Boolean);

private

   pragma Import (C, StringCopy, "XmStringCopy");
   pragma Import (C, StringConcat, "XmStringConcat");
   pragma Import (C, StringFree, "XmStringFree");
   pragma Import (C, FontListAppendEntry, "XmFontListAppendEntry");
   pragma Import (C, FontListFree, "XmFontListFree");

end Xm;
