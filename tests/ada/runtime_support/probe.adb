--  The driver's questions come through the toolkit's own input handling and are answered when the
--  toolkit is about to wait: everything that has happened so far is dealt with then.

with Ada.Strings.Fixed;
with Ada.Strings.Unbounded;
with Ada.Text_IO;
with GNAT.OS_Lib;
with Interfaces.C.Strings;
with System;
with XlibR5;

package body Probe is

   package C renames Interfaces.C;
   package CS renames Interfaces.C.Strings;
   use Ada.Strings.Unbounded;
   use type C.int;
   use type System.Address;
   use type XlibR5.XID;

   Question  : Unbounded_String;
   Top_Shell : XtR5.Widget := System.Null_Address;

   procedure Say (Line : String) is
   begin
      Ada.Text_IO.Put_Line (Line);
      Ada.Text_IO.Flush;
   end Say;

   --  Where a widget is

   --  The library's XWindowAttributes.
   type Window_Attributes is record
      X, Y, Width, Height, Border, Depth : C.int;
      Visual                             : System.Address;
      Root                               : C.unsigned_long;
      Class, Bit_Gravity, Win_Gravity    : C.int;
      Backing_Store                      : C.int;
      Planes, Pixel                      : C.unsigned_long;
      Save_Under                         : C.int;
      Colormap                           : C.unsigned_long;
      Installed, Map_State               : C.int;
      Masks                              : C.long;
      More_Masks, Do_Not_Propagate       : C.long;
      Override_Redirect                  : C.int;
      Screen                             : System.Address;
   end record
     with Convention => C;

   Is_Viewable : constant C.int := 2;

   function Can_Be_Seen (W : XtR5.Widget) return Boolean is
      function XGetWindowAttributes
        (Dpy : XlibR5.Display; Win : XlibR5.Window; Result : out Window_Attributes) return C.int
        with Import, Convention => C, External_Name => "XGetWindowAttributes";
      Attributes : Window_Attributes;
      Window     : constant XlibR5.Window := XtR5.WindowOfObject (W);
   begin
      return Window /= XlibR5.None
        and then XGetWindowAttributes (XtR5.DisplayOfObject (W), Window, Attributes) /= 0
        and then Attributes.Map_State = Is_Viewable;
   end Can_Be_Seen;

   function Place (W : XtR5.Widget) return String is
      procedure XtTranslateCoords
        (W : XtR5.Widget; X, Y : XtR5.Position; Root_X, Root_Y : out XtR5.Position)
        with Import, Convention => C, External_Name => "XtTranslateCoords";
      X, Y : XtR5.Position;
   begin
      XtTranslateCoords (W, 0, 0, X, Y);
      return X'Image & Y'Image & Size (W, "width")'Image & Size (W, "height")'Image;
   end Place;

   --  Answers

   --  Whether an event waits that the last words to the server have brought about.
   function More_To_Do return Boolean is
      procedure XSync (Dpy : XlibR5.Display; Discard : C.int)
        with Import, Convention => C, External_Name => "XSync";
      function XPending (Dpy : XlibR5.Display) return C.int
        with Import, Convention => C, External_Name => "XPending";
      Display : constant XlibR5.Display := XtR5.DisplayOfObject (Top_Shell);
   begin
      XSync (Display, 0);
      return XPending (Display) /= 0;
   end More_To_Do;

   procedure Answer (Text : String) is
   begin
      Say ("probe: " & Text);
      Question := Null_Unbounded_String;
   end Answer;

   procedure Before_Waiting (Closure : System.Address)
     with Convention => C;

   procedure Before_Waiting (Closure : System.Address) is
      pragma Unreferenced (Closure);
      Words : constant String := To_String (Question);
      Asked : constant String := "where ";
      W     : XtR5.Widget;
   begin
      if Words = "" or else More_To_Do then
         return;
      elsif Words = "rest" then
         Answer (Words);
      elsif Ada.Strings.Fixed.Index (Words, Asked) = Words'First then
         W := XtR5.NameToWidget
           (Top_Shell, "*" & Words (Words'First + Asked'Length .. Words'Last));
         if W /= System.Null_Address and then Can_Be_Seen (W) then
            Answer (Words & Place (W));
         end if;
      end if;
   end Before_Waiting;

   --  Questions

   procedure Input_Came
     (Closure : System.Address; Source : System.Address; Identifier : System.Address)
     with Convention => C;

   procedure Input_Came
     (Closure : System.Address; Source : System.Address; Identifier : System.Address)
   is
      pragma Unreferenced (Closure, Source, Identifier);
      Buffer : String (1 .. 200);
      Length : constant Integer :=
        GNAT.OS_Lib.Read (GNAT.OS_Lib.Standin, Buffer'Address, Buffer'Length);
   begin
      if Length <= 0 then
         Say ("the driver is gone");
         GNAT.OS_Lib.OS_Exit (1);
      end if;
      --  One question at a time, and short: it comes in one piece, with its newline.
      Question := To_Unbounded_String (Buffer (1 .. Length - 1));
   end Input_Came;

   procedure Listen (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) is
      pragma Unreferenced (Client_Data, Call_Data);
      type Input_Procedure is access procedure
        (Closure : System.Address; Source : System.Address; Identifier : System.Address)
        with Convention => C;
      type Hook_Procedure is access procedure (Closure : System.Address)
        with Convention => C;
      function XtAppAddInput
        (Context   : XtR5.AppContext;
         Source    : C.int;
         Condition : System.Address;
         Proc      : Input_Procedure;
         Closure   : System.Address) return C.unsigned_long
        with Import, Convention => C, External_Name => "XtAppAddInput";
      function XtAppAddBlockHook
        (Context : XtR5.AppContext;
         Proc    : Hook_Procedure;
         Closure : System.Address) return C.unsigned_long
        with Import, Convention => C, External_Name => "XtAppAddBlockHook";

      Context : constant XtR5.AppContext := XtR5.WidgetToApplicationContext (W);
      When_It_Can_Be_Read : constant XtR5.ArgVal := 1;
      Input, Hook : C.unsigned_long;
   begin
      if Top_Shell /= System.Null_Address then
         return;
      end if;
      Top_Shell := W;
      while XtR5.Parent (Top_Shell) /= System.Null_Address loop
         Top_Shell := XtR5.Parent (Top_Shell);
      end loop;
      Input :=
        XtAppAddInput
          (Context, 0, XtR5.To_Address (When_It_Can_Be_Read), Input_Came'Access,
           System.Null_Address);
      Hook := XtAppAddBlockHook (Context, Before_Waiting'Access, System.Null_Address);
      pragma Unreferenced (Input, Hook);
   end Listen;

   procedure Quit (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) is
      pragma Unreferenced (Client_Data, Call_Data);
   begin
      XtR5.AppSetExitFlag (XtR5.WidgetToApplicationContext (W));
   end Quit;

   --  Texts and resources

   function Plain (Text : String) return String is (Text (Text'First .. Text'Last - 1));

   --  One part of a compound string after the other.  A text is the reader's, and a C string.
   function XmStringGetNextTriple
     (Context : System.Address; Length : out C.unsigned; Value : out CS.chars_ptr) return C.int
     with Import, Convention => C, External_Name => "XmStringGetNextTriple";

   Text_Part        : constant C.int := 2;
   Separator_Part   : constant C.int := 4;
   Locale_Text_Part : constant C.int := 5;
   End_Part         : constant C.int := 126;

   function Text_Of (Compound : XtR5.Pointer) return String is
      function XmStringInitContext
        (Context : out System.Address; Text : XtR5.Pointer) return C.char
        with Import, Convention => C, External_Name => "XmStringInitContext";
      Context : System.Address;
      Result  : Unbounded_String;
      Part    : C.int;
      Length  : C.unsigned;
      Value   : CS.chars_ptr;
   begin
      if C.char'Pos (XmStringInitContext (Context, Compound)) = 0 then
         return "";
      end if;
      loop
         Part := XmStringGetNextTriple (Context, Length, Value);
         exit when Part = End_Part;
         if Part in Text_Part | Locale_Text_Part then
            Append (Result, CS.Value (Value));
         elsif Part = Separator_Part then
            Append (Result, "|");
         end if;
      end loop;
      return To_String (Result);
   end Text_Of;

   procedure Get (W : XtR5.Widget; Resource : String; Target : System.Address) is
      Args : XtR5.ArgList (1 .. 1);
   begin
      XtR5.SetArg (Args (1), Resource, Target);
      XtR5.GetValues (W, Args, 1);
   end Get;

   function Handle (W : XtR5.Widget; Resource : String) return XtR5.Widget is
      Value : aliased System.Address := System.Null_Address;
   begin
      Get (W, Resource, Value'Address);
      return Value;
   end Handle;

   function Compound (W : XtR5.Widget; Resource : String) return String is
     (Text_Of (Handle (W, Resource)));

   generic
      type Item is (<>);
   function Value_Of (W : XtR5.Widget; Resource : String) return Integer;

   function Value_Of (W : XtR5.Widget; Resource : String) return Integer is
      Value : aliased Item := Item'First;
   begin
      Get (W, Resource, Value'Address);
      return Item'Pos (Value);
   end Value_Of;

   function Int_Value is new Value_Of (C.int);
   function Dimension_Value is new Value_Of (XtR5.Dimension);
   function Enum_Value is new Value_Of (XtR5.Enum);

   function Number (W : XtR5.Widget; Resource : String) return Integer renames Int_Value;
   function Size (W : XtR5.Widget; Resource : String) return Integer renames Dimension_Value;
   function Enum (W : XtR5.Widget; Resource : String) return Integer renames Enum_Value;

end Probe;
