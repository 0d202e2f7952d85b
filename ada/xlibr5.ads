--  What generated packages use of the X library: identifiers, strings, colours, fonts, images.
--  A specification over libX11's own functions; the body only turns Ada strings into C's.  Pointers
--  to things of the library are plain addresses, every X identifier is one unsigned type, counts
--  and lengths are Integer, and a String parameter may end with a NUL or not.

pragma Ada_2012;

with Interfaces.C;
with Interfaces.C.Strings;
with System;

package XlibR5 is

   subtype Int is Integer;

   --  Windows, pixmaps, colormaps, pixels and keysyms are all the same width in C.
   type XID is new Interfaces.C.unsigned_long;
   subtype Window is XID;
   subtype Pixmap is XID;
   subtype Drawable is XID;
   subtype Colormap is XID;
   subtype Cursor is XID;
   subtype Font is XID;
   subtype Pixel is XID;
   subtype KeySym is XID;
   subtype Atom is XID;

   None : constant XID := 0;

   subtype Display is System.Address;
   subtype Screen_Ptr is System.Address;
   subtype Visual_Ptr is System.Address;
   subtype GC is System.Address;
   subtype FontStruct_Ptr is System.Address;
   subtype FontSet is System.Address;

   type String_Ptr is access String;
   type StringList is array (Integer range <>) of String_Ptr;
   type StringList_Ptr is access StringList;

   subtype UnsignedChar is Interfaces.C.unsigned_char;
   type UnsignedCharList is array (Integer range <>) of aliased UnsignedChar;
   type UnsignedCharList_Ptr is access UnsignedCharList;

   --  The elements of a wide character text.  As wide as wchar_t, so that XmNvalueWcs can take it.
   type UnsignedShort is mod 2 ** Interfaces.C.wchar_t'Size;
   type UnsignedShortList is array (Integer range <>) of aliased UnsignedShort;

   type IntList is array (Integer range <>) of aliased Int;
   type PixelList is array (Integer range <>) of aliased Pixel;

   type Color is record
      Pixel : XID := 0;
      Red   : Interfaces.C.unsigned_short := 0;
      Green : Interfaces.C.unsigned_short := 0;
      Blue  : Interfaces.C.unsigned_short := 0;
      Flags : Interfaces.C.unsigned_char := 0;
      Pad   : Interfaces.C.unsigned_char := 0;
   end record;
   pragma Convention (C, Color);

   --  The head that all events share.
   type Event is record
      Kind       : Int;
      Serial     : Interfaces.C.unsigned_long;
      Send_Event : Int;
      Display    : System.Address;
      Window     : XID;
   end record;
   pragma Convention (C, Event);

   type Event_Ptr is access all Event;
   pragma Convention (C, Event_Ptr);

   type GCValues is record
      Func               : Int := 0;
      Plane_Mask         : Interfaces.C.unsigned_long := 0;
      Foreground         : Pixel := 0;
      Background         : Pixel := 0;
      Line_Width         : Int := 0;
      Line_Style         : Int := 0;
      Cap_Style          : Int := 0;
      Join_Style         : Int := 0;
      Fill_Style         : Int := 0;
      Fill_Rule          : Int := 0;
      Arc_Mode           : Int := 0;
      Tile               : Pixmap := 0;
      Stipple            : Pixmap := 0;
      Ts_X_Origin        : Int := 0;
      Ts_Y_Origin        : Int := 0;
      Font               : XID := 0;
      Subwindow_Mode     : Int := 0;
      Graphics_Exposures : Int := 0;
      Clip_X_Origin      : Int := 0;
      Clip_Y_Origin      : Int := 0;
      Clip_Mask          : Pixmap := 0;
      Dash_Offset        : Int := 0;
      Dashes             : Interfaces.C.char := Interfaces.C.nul;
   end record;
   pragma Convention (C, GCValues);

   type Image_Functions is array (1 .. 6) of System.Address;

   --  Laid out as the library's XImage, whose members the generated icons read and set.
   type Image is record
      Width            : Int;
      Height           : Int;
      Xoffset          : Int;
      Format           : Int;
      Data             : System.Address;
      Byte_Order       : Int;
      Bitmap_Unit      : Int;
      Bitmap_Bit_Order : Int;
      Bitmap_Pad       : Int;
      Depth            : Int;
      Bytes_Per_Line   : Int;
      Bits_Per_Pixel   : Int;
      Red_Mask         : Interfaces.C.unsigned_long;
      Green_Mask       : Interfaces.C.unsigned_long;
      Blue_Mask        : Interfaces.C.unsigned_long;
      Obdata           : System.Address;
      Functions        : Image_Functions;
   end record;
   pragma Convention (C, Image);

   type Image_Ptr is access all Image;
   pragma Convention (C, Image_Ptr);
   pragma No_Strict_Aliasing (Image_Ptr);

   XYBitmap : constant Int := 0;
   XYPixmap : constant Int := 1;
   ZPixmap  : constant Int := 2;

   --  The text up to its first NUL, with a NUL behind it: what C wants.
   function C_Text (Text : String) return String;

   --  The text of a C string; "" for a null one.
   function Ada_Text (Text : Interfaces.C.Strings.chars_ptr) return String;

   --  The command line: the program's name first, then its arguments, from 1.
   function GetArguments return StringList_Ptr;

   function DefaultScreenOfDisplay (Dpy : Display) return Screen_Ptr;
   function RootWindowOfScreen (Screen : Screen_Ptr) return Window;
   function DefaultVisualOfScreen (Screen : Screen_Ptr) return Visual_Ptr;
   function DefaultColormapOfScreen (Screen : Screen_Ptr) return Colormap;
   function BlackPixelOfScreen (Screen : Screen_Ptr) return Pixel;
   function WhitePixelOfScreen (Screen : Screen_Ptr) return Pixel;

   --  Status is false when there is no such colour, or no cell left for it.
   procedure AllocNamedColor
     (Dpy    : Display;
      Map    : Colormap;
      Name   : String;
      Screen : out Color;
      Exact  : out Color;
      Status : out Boolean);

   --  A null address when the server has no such font.
   function LoadQueryFont (Dpy : Display; Name : String) return FontStruct_Ptr;

   --  Names: font names with commas between them.  Missing lists the character sets without a font
   --  (null when there is none), Default is what stands for their characters.
   procedure CreateFontSet
     (Dpy     : Display;
      Names   : String;
      Missing : out StringList_Ptr;
      Count   : out Int;
      Default : out String_Ptr;
      Set     : out FontSet);

   function BitmapPad (Dpy : Display) return Int;

   function CreateImage
     (Dpy            : Display;
      Visual         : Visual_Ptr;
      Depth          : Int;
      Format         : Int;
      Offset         : Int;
      Data           : System.Address;
      Width          : Int;
      Height         : Int;
      Pad            : Int;
      Bytes_Per_Line : Int) return Image_Ptr;

   function PutPixel (Img : Image_Ptr; X, Y : Int; Value : Pixel) return Int;
   function GetPixel (Img : Image_Ptr; X, Y : Int) return Pixel;

   --  Frees the image but not its data, which belong to Ada.
   function DestroyImage (Img : Image_Ptr) return Int;

   procedure PutImage
     (Dpy                        : Display;
      Target                     : Drawable;
      Context                    : GC;
      Img                        : Image_Ptr;
      Src_X, Src_Y, Dst_X, Dst_Y : Int;
      Width, Height              : Int);

   function CreatePixmap
     (Dpy : Display; Target : Drawable; Width, Height, Depth : Int) return Pixmap;
   procedure FreePixmap (Dpy : Display; Map : Pixmap);

   function CreateGC
     (Dpy : Display; Target : Drawable; Mask : XID; Values : GCValues) return GC;
   procedure FreeGC (Dpy : Display; Context : GC);

   procedure SetForeground (Dpy : Display; Context : GC; Value : Pixel);
   procedure DrawLine (Dpy : Display; Target : Drawable; Context : GC; X1, Y1, X2, Y2 : Int);
   procedure FillRectangle
     (Dpy : Display; Target : Drawable; Context : GC; X, Y, Width, Height : Int);
   procedure ClearWindow (Dpy : Display; Target : Window);
   procedure Bell (Dpy : Display; Percent : Int);
   procedure Flush (Dpy : Display);

private

   pragma Import (C, DefaultScreenOfDisplay, "XDefaultScreenOfDisplay");
   pragma Import (C, RootWindowOfScreen, "XRootWindowOfScreen");
   pragma Import (C, DefaultVisualOfScreen, "XDefaultVisualOfScreen");
   pragma Import (C, DefaultColormapOfScreen, "XDefaultColormapOfScreen");
   pragma Import (C, BlackPixelOfScreen, "XBlackPixelOfScreen");
   pragma Import (C, WhitePixelOfScreen, "XWhitePixelOfScreen");
   pragma Import (C, BitmapPad, "XBitmapPad");
   pragma Import (C, CreateImage, "XCreateImage");
   pragma Import (C, PutPixel, "XPutPixel");
   pragma Import (C, GetPixel, "XGetPixel");
   pragma Import (C, PutImage, "XPutImage");
   pragma Import (C, CreatePixmap, "XCreatePixmap");
   pragma Import (C, FreePixmap, "XFreePixmap");
   pragma Import (C, CreateGC, "XCreateGC");
   pragma Import (C, FreeGC, "XFreeGC");
   pragma Import (C, SetForeground, "XSetForeground");
   pragma Import (C, DrawLine, "XDrawLine");
   pragma Import (C, FillRectangle, "XFillRectangle");
   pragma Import (C, ClearWindow, "XClearWindow");
   pragma Import (C, Bell, "XBell");
   pragma Import (C, Flush, "XFlush");

end XlibR5;
