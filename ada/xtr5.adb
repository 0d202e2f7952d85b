--  The intrinsics' functions that take strings, lists or Booleans.

pragma Ada_2012;

with Ada.Unchecked_Conversion;
with Interfaces.C.Strings;

package body XtR5 is

   package C renames Interfaces.C;
   package CS renames Interfaces.C.Strings;
   use type C.unsigned_char;

   function C_Text (Text : String) return String renames XlibR5.C_Text;

   type C_Strings is array (C.size_t range <>) of aliased CS.chars_ptr;

   function From_Address is new Ada.Unchecked_Conversion (System.Address, ArgVal);
   function Into_Address is new Ada.Unchecked_Conversion (ArgVal, System.Address);
   function From_XID is new Ada.Unchecked_Conversion (XlibR5.XID, ArgVal);

   function To_ArgVal (Value : System.Address) return ArgVal is (From_Address (Value));
   function To_Address (Value : ArgVal) return System.Address is (Into_Address (Value));

   --  Xt looks every argument's name up as a quark, so this copy costs nothing that Xt would not
   --  spend a moment later.
   procedure SetArg (Item : out Arg; Name : String; Value : ArgVal) is
   begin
      Item := (XrmR5.QuarkToAddress (XrmR5.StringToQuark (Name)), Value);
   end SetArg;

   procedure SetArg (Item : out Arg; Name : String; Value : Integer) is
   begin
      SetArg (Item, Name, ArgVal (Value));
   end SetArg;

   procedure SetArg (Item : out Arg; Name : String; Value : Boolean) is
   begin
      SetArg (Item, Name, ArgVal (Boolean'Pos (Value)));
   end SetArg;

   procedure SetArg (Item : out Arg; Name : String; Value : System.Address) is
   begin
      SetArg (Item, Name, From_Address (Value));
   end SetArg;

   procedure SetArg (Item : out Arg; Name : String; Value : XlibR5.XID) is
   begin
      SetArg (Item, Name, From_XID (Value));
   end SetArg;

   --  The list as C wants it, with a null behind it.  Never given back: Xt may keep pointing at it.
   function New_C_Strings (List : XlibR5.StringList) return C_Strings is
   begin
      return Result : C_Strings (0 .. List'Length) := (others => CS.Null_Ptr) do
         for I in List'Range loop
            Result (C.size_t (I - List'First)) := CS.New_String (C_Text (List (I).all));
         end loop;
      end return;
   end New_C_Strings;

   procedure AppInitialize
     (Context   : out AppContext;
      App_Class : String;
      Options   : XrmR5.OptionDescList;
      Argv      : in out XlibR5.StringList_Ptr;
      Fallback  : XlibR5.StringList;
      Args      : ArgList;
      Shell     : out Widget)
   is
      function XtAppInitialize
        (Context     : access AppContext;
         App_Class   : System.Address;
         Options     : System.Address;
         Num_Options : C.unsigned;
         Argc        : access C.int;
         Argv        : System.Address;
         Fallback    : System.Address;
         Args        : System.Address;
         Num_Args    : C.unsigned) return Widget;
      pragma Import (C, XtAppInitialize, "XtAppInitialize");

      Class_Text  : constant String := C_Text (App_Class);
      C_Argv      : constant C_Strings := New_C_Strings (Argv.all);
      C_Fallback  : constant C_Strings := New_C_Strings (Fallback);
      Argc        : aliased C.int := Argv'Length;
      The_Context : aliased AppContext := System.Null_Address;
   begin
      Shell :=
        XtAppInitialize
          (The_Context'Access, Class_Text'Address, Options'Address, Options'Length, Argc'Access,
           C_Argv'Address,
           (if Fallback'Length = 0 then System.Null_Address else C_Fallback'Address),
           Args'Address, Args'Length);
      Context := The_Context;
      Argv := new XlibR5.StringList (1 .. Integer (Argc));
      for I in Argv'Range loop
         Argv (I) := new String'(CS.Value (C_Argv (C.size_t (I - 1))));
      end loop;
   end AppInitialize;

   function CreateWidget
     (Name   : String;
      Class  : WidgetClass;
      Parent : Widget;
      Args   : ArgList;
      Nargs  : Int) return Widget
   is
      function XtCreateWidget
        (Name   : System.Address;
         Class  : WidgetClass;
         Parent : Widget;
         Args   : System.Address;
         Nargs  : C.unsigned) return Widget;
      pragma Import (C, XtCreateWidget, "XtCreateWidget");

      Text : constant String := C_Text (Name);
   begin
      return XtCreateWidget (Text'Address, Class, Parent, Args'Address, C.unsigned (Nargs));
   end CreateWidget;

   function CreateManagedWidget
     (Name   : String;
      Class  : WidgetClass;
      Parent : Widget;
      Args   : ArgList;
      Nargs  : Int) return Widget is
   begin
      return W : constant Widget := CreateWidget (Name, Class, Parent, Args, Nargs) do
         ManageChild (W);
      end return;
   end CreateManagedWidget;

   function CreatePopupShell
     (Name : String; Class : WidgetClass; Parent : Widget; Args : ArgList) return Widget
   is
      function XtCreatePopupShell
        (Name   : System.Address;
         Class  : WidgetClass;
         Parent : Widget;
         Args   : System.Address;
         Nargs  : C.unsigned) return Widget;
      pragma Import (C, XtCreatePopupShell, "XtCreatePopupShell");

      Text : constant String := C_Text (Name);
   begin
      return XtCreatePopupShell (Text'Address, Class, Parent, Args'Address, Args'Length);
   end CreatePopupShell;

   procedure SetValues (W : Widget; Args : ArgList; Nargs : Int) is
      procedure XtSetValues (W : Widget; Args : System.Address; Nargs : C.unsigned);
      pragma Import (C, XtSetValues, "XtSetValues");
   begin
      XtSetValues (W, Args'Address, C.unsigned (Nargs));
   end SetValues;

   procedure GetValues (W : Widget; Args : ArgList; Nargs : Int) is
      procedure XtGetValues (W : Widget; Args : System.Address; Nargs : C.unsigned);
      pragma Import (C, XtGetValues, "XtGetValues");
   begin
      XtGetValues (W, Args'Address, C.unsigned (Nargs));
   end GetValues;

   procedure SetSensitive (W : Widget; Sensitive : Boolean) is
      procedure XtSetSensitive (W : Widget; Sensitive : C.int);
      pragma Import (C, XtSetSensitive, "XtSetSensitive");
   begin
      XtSetSensitive (W, Boolean'Pos (Sensitive));
   end SetSensitive;

   function IsSensitive (W : Widget) return Boolean is
      function XtIsSensitive (W : Widget) return Small_Boolean;
      pragma Import (C, XtIsSensitive, "XtIsSensitive");
   begin
      return XtIsSensitive (W) /= 0;
   end IsSensitive;

   function IsManaged (W : Widget) return Boolean is
      function XtIsManaged (W : Widget) return Small_Boolean;
      pragma Import (C, XtIsManaged, "XtIsManaged");
   begin
      return XtIsManaged (W) /= 0;
   end IsManaged;

   function IsRealized (W : Widget) return Boolean is
      function XtIsRealized (W : Widget) return Small_Boolean;
      pragma Import (C, XtIsRealized, "XtIsRealized");
   begin
      return XtIsRealized (W) /= 0;
   end IsRealized;

   function Name (W : Widget) return String is
      function XtName (W : Widget) return CS.chars_ptr;
      pragma Import (C, XtName, "XtName");
   begin
      return XlibR5.Ada_Text (XtName (W));
   end Name;

   function NameToWidget (Reference : Widget; Names : String) return Widget is
      function XtNameToWidget (Reference : Widget; Names : System.Address) return Widget;
      pragma Import (C, XtNameToWidget, "XtNameToWidget");

      Text : constant String := C_Text (Names);
   begin
      return XtNameToWidget (Reference, Text'Address);
   end NameToWidget;

   procedure AddCallback
     (W : Widget; Name : String; Proc : Procedure_Ptr; Client_Data : ArgVal)
   is
      procedure XtAddCallback
        (W : Widget; Name : System.Address; Proc : Procedure_Ptr; Client_Data : ArgVal);
      pragma Import (C, XtAddCallback, "XtAddCallback");

      Text : constant String := C_Text (Name);
   begin
      XtAddCallback (W, Text'Address, Proc, Client_Data);
   end AddCallback;

   procedure RemoveCallback
     (W : Widget; Name : String; Proc : Procedure_Ptr; Client_Data : ArgVal)
   is
      procedure XtRemoveCallback
        (W : Widget; Name : System.Address; Proc : Procedure_Ptr; Client_Data : ArgVal);
      pragma Import (C, XtRemoveCallback, "XtRemoveCallback");

      Text : constant String := C_Text (Name);
   begin
      XtRemoveCallback (W, Text'Address, Proc, Client_Data);
   end RemoveCallback;

   procedure RemoveAllCallbacks (W : Widget; Name : String) is
      procedure XtRemoveAllCallbacks (W : Widget; Name : System.Address);
      pragma Import (C, XtRemoveAllCallbacks, "XtRemoveAllCallbacks");

      Text : constant String := C_Text (Name);
   begin
      XtRemoveAllCallbacks (W, Text'Address);
   end RemoveAllCallbacks;

   procedure CallCallbacks (W : Widget; Name : String; Call_Data : Pointer) is
      procedure XtCallCallbacks (W : Widget; Name : System.Address; Call_Data : Pointer);
      pragma Import (C, XtCallCallbacks, "XtCallCallbacks");

      Text : constant String := C_Text (Name);
   begin
      XtCallCallbacks (W, Text'Address, Call_Data);
   end CallCallbacks;

   function ParseTranslationTable (Table : String) return Translations is
      function XtParseTranslationTable (Table : System.Address) return Translations;
      pragma Import (C, XtParseTranslationTable, "XtParseTranslationTable");

      Text : constant String := C_Text (Table);
   begin
      return XtParseTranslationTable (Text'Address);
   end ParseTranslationTable;

end XtR5;
