--  Motif's functions that take or give strings and Booleans.

pragma Ada_2012;

with Interfaces.C.Strings;

package body Xm is

   package C renames Interfaces.C;
   package CS renames Interfaces.C.Strings;
   use type C.unsigned_char;

   function C_Text (Text : String) return String renames XlibR5.C_Text;

   function StringSegmentCreate
     (Text      : String;
      Tag       : String;
      Direction : Integer;
      Separator : Boolean) return XmString
   is
      function XmStringSegmentCreate
        (Text, Tag : System.Address; Direction : C.unsigned_char; Separator : C.int)
         return XmString;
      pragma Import (C, XmStringSegmentCreate, "XmStringSegmentCreate");

      The_Text : constant String := C_Text (Text);
      The_Tag  : constant String := C_Text (Tag);
   begin
      return
        XmStringSegmentCreate
          (The_Text'Address, The_Tag'Address, C.unsigned_char (Direction),
           Boolean'Pos (Separator));
   end StringSegmentCreate;

   function StringCreateLtoR (Text : String; Tag : String) return XmString is
      function XmStringCreateLtoR (Text, Tag : System.Address) return XmString;
      pragma Import (C, XmStringCreateLtoR, "XmStringCreateLtoR");

      The_Text : constant String := C_Text (Text);
      The_Tag  : constant String := C_Text (Tag);
   begin
      return XmStringCreateLtoR (The_Text'Address, The_Tag'Address);
   end StringCreateLtoR;

   function FontListEntryCreate
     (Tag : String; Kind : FontType; Font : System.Address) return FontListEntry
   is
      function XmFontListEntryCreate
        (Tag : System.Address; Kind : FontType; Font : System.Address) return FontListEntry;
      pragma Import (C, XmFontListEntryCreate, "XmFontListEntryCreate");

      The_Tag : constant String := C_Text (Tag);
   begin
      return XmFontListEntryCreate (The_Tag'Address, Kind, Font);
   end FontListEntryCreate;

   function GetPixmapByDepth
     (Screen     : XlibR5.Screen_Ptr;
      Name       : String;
      Foreground : XlibR5.Pixel;
      Background : XlibR5.Pixel;
      Depth      : Integer) return XlibR5.Pixmap
   is
      function XmGetPixmapByDepth
        (Screen     : XlibR5.Screen_Ptr;
         Name       : System.Address;
         Foreground : XlibR5.Pixel;
         Background : XlibR5.Pixel;
         Depth      : C.int) return XlibR5.Pixmap;
      pragma Import (C, XmGetPixmapByDepth, "XmGetPixmapByDepth");

      The_Name : constant String := C_Text (Name);
   begin
      return XmGetPixmapByDepth (Screen, The_Name'Address, Foreground, Background, C.int (Depth));
   end GetPixmapByDepth;

   --  Takes a C string that Motif has allocated.
   function Taken (Text : CS.chars_ptr) return String is
      procedure XtFree (Block : CS.chars_ptr);
      pragma Import (C, XtFree, "XtFree");
   begin
      return Result : constant String := XlibR5.Ada_Text (Text) do
         XtFree (Text);
      end return;
   end Taken;

   function TextFieldGetString (W : XtR5.Widget) return String is
      function XmTextFieldGetString (W : XtR5.Widget) return CS.chars_ptr;
      pragma Import (C, XmTextFieldGetString, "XmTextFieldGetString");
   begin
      return Taken (XmTextFieldGetString (W));
   end TextFieldGetString;

   procedure TextFieldSetString (W : XtR5.Widget; Text : String) is
      procedure XmTextFieldSetString (W : XtR5.Widget; Text : System.Address);
      pragma Import (C, XmTextFieldSetString, "XmTextFieldSetString");

      The_Text : constant String := C_Text (Text);
   begin
      XmTextFieldSetString (W, The_Text'Address);
   end TextFieldSetString;

   function TextGetString (W : XtR5.Widget) return String is
      function XmTextGetString (W : XtR5.Widget) return CS.chars_ptr;
      pragma Import (C, XmTextGetString, "XmTextGetString");
   begin
      return Taken (XmTextGetString (W));
   end TextGetString;

   procedure TextSetString (W : XtR5.Widget; Text : String) is
      procedure XmTextSetString (W : XtR5.Widget; Text : System.Address);
      pragma Import (C, XmTextSetString, "XmTextSetString");

      The_Text : constant String := C_Text (Text);
   begin
      XmTextSetString (W, The_Text'Address);
   end TextSetString;

   function ToggleButtonGetState (W : XtR5.Widget) return Boolean is
      function XmToggleButtonGetState (W : XtR5.Widget) return C.unsigned_char;
      pragma Import (C, XmToggleButtonGetState, "XmToggleButtonGetState");
   begin
      return XmToggleButtonGetState (W) /= 0;
   end ToggleButtonGetState;

   procedure ToggleButtonSetState (W : XtR5.Widget; State, Notify : Boolean) is
      procedure XmToggleButtonSetState (W : XtR5.Widget; State, Notify : C.int);
      pragma Import (C, XmToggleButtonSetState, "XmToggleButtonSetState");
   begin
      XmToggleButtonSetState (W, Boolean'Pos (State), Boolean'Pos (Notify));
   end ToggleButtonSetState;

end Xm;
