--  What generated packages use of the X toolkit intrinsics, and what callbacks most often need.
--  Widgets and other pointers are plain addresses, so that XtNULL and "=" fit all of them; counts
--  and positions in lists are Integer; a String parameter may end with a NUL or not.

pragma Ada_2012;

with Interfaces.C;
with System;
with XlibR5;
with XrmR5;
with Xt;

package XtR5 is

   --  Motif before the intrinsics: both define the vendor shell, and Motif's is meant.
   pragma Linker_Options ("-lXm" & ASCII.NUL & "-lXt" & ASCII.NUL & "-lX11");

   subtype Int is Integer;
   subtype Double is Long_Float;

   --  What an argument and a callback's client data hold in C: an integer as wide as a pointer.
   type ArgVal is new Interfaces.C.long;

   subtype Pointer is System.Address;
   subtype Widget is System.Address;
   subtype WidgetClass is System.Address;
   subtype AppContext is System.Address;
   subtype LanguageProc is System.Address;
   subtype Translations is System.Address;
   subtype Procedure_Ptr is System.Address;

   subtype Pixel is XlibR5.Pixel;

   --  The types that width, height, x and y have when their values are fetched.
   subtype Dimension is Interfaces.C.unsigned_short;
   subtype Position is Interfaces.C.short;
   --  And those of toggles and of enumerated resources such as XmNalignment.
   subtype Small_Boolean is Interfaces.C.unsigned_char;
   subtype Enum is Interfaces.C.unsigned_char;

   XtNULL : constant System.Address := System.Null_Address;

   function "=" (Left, Right : System.Address) return Boolean renames System."=";

   type WidgetList is array (Integer range <>) of aliased Widget;
   type WidgetList_Ptr is access WidgetList;

   type Arg is record
      Name  : System.Address := System.Null_Address;
      Value : ArgVal := 0;
   end record;
   pragma Convention (C, Arg);

   type ArgList is array (Integer range <>) of aliased Arg;
   pragma Convention (C, ArgList);

   --  Fills one argument.  The name may be a passing text: a copy that lasts is pointed at.
   procedure SetArg (Item : out Arg; Name : String; Value : ArgVal);
   procedure SetArg (Item : out Arg; Name : String; Value : Integer);
   procedure SetArg (Item : out Arg; Name : String; Value : Boolean);
   procedure SetArg (Item : out Arg; Name : String; Value : System.Address);
   procedure SetArg (Item : out Arg; Name : String; Value : XlibR5.XID);

   --  Client data between what Xt hands over and what a program means by it.
   function To_ArgVal (Value : System.Address) return ArgVal;
   function To_Address (Value : ArgVal) return System.Address;

   --  In C these are variables that hold the classes' addresses.
   OverrideShellWidgetClass : constant WidgetClass;
   pragma Import (C, OverrideShellWidgetClass, "overrideShellWidgetClass");
   TopLevelShellWidgetClass : constant WidgetClass;
   pragma Import (C, TopLevelShellWidgetClass, "topLevelShellWidgetClass");
   TransientShellWidgetClass : constant WidgetClass;
   pragma Import (C, TransientShellWidgetClass, "transientShellWidgetClass");
   ApplicationShellWidgetClass : constant WidgetClass;
   pragma Import (C, ApplicationShellWidgetClass, "applicationShellWidgetClass");

   --  Starting and running a program.

   function SetLanguageProc
     (Context : AppContext; Proc : LanguageProc; Client_Data : Pointer) return LanguageProc;

   --  Opens the display and creates the application shell; ends the program with the toolkit's
   --  message when there is no display.  Argv loses the options that the toolkit understands.
   procedure AppInitialize
     (Context   : out AppContext;
      App_Class : String;
      Options   : XrmR5.OptionDescList;
      Argv      : in out XlibR5.StringList_Ptr;
      Fallback  : XlibR5.StringList;
      Args      : ArgList;
      Shell     : out Widget);

   procedure AppMainLoop (Context : AppContext);
   --  Lets AppMainLoop return after the event at hand.
   procedure AppSetExitFlag (Context : AppContext);
   procedure DestroyApplicationContext (Context : AppContext);
   function WidgetToApplicationContext (W : Widget) return AppContext;

   --  The procedure has convention C and the parameters (client data, identifier's address).
   function AppAddTimeOut
     (Context      : AppContext;
      Milliseconds : Interfaces.C.unsigned_long;
      Proc         : Procedure_Ptr;
      Client_Data  : ArgVal) return ArgVal;
   procedure RemoveTimeOut (Timer : ArgVal);

   --  Widgets.

   function CreateWidget
     (Name   : String;
      Class  : WidgetClass;
      Parent : Widget;
      Args   : ArgList;
      Nargs  : Int) return Widget;
   function CreateManagedWidget
     (Name   : String;
      Class  : WidgetClass;
      Parent : Widget;
      Args   : ArgList;
      Nargs  : Int) return Widget;
   function CreatePopupShell
     (Name : String; Class : WidgetClass; Parent : Widget; Args : ArgList) return Widget;
   procedure DestroyWidget (W : Widget);

   procedure ManageChild (W : Widget);
   procedure UnmanageChild (W : Widget);
   procedure RealizeWidget (W : Widget);
   procedure UnrealizeWidget (W : Widget);
   procedure MapWidget (W : Widget);
   procedure UnmapWidget (W : Widget);
   procedure Popup (Shell : Widget; Grab : Xt.GrabKind);
   procedure Popdown (Shell : Widget);

   procedure SetValues (W : Widget; Args : ArgList; Nargs : Int);
   procedure GetValues (W : Widget; Args : ArgList; Nargs : Int);
   procedure SetSensitive (W : Widget; Sensitive : Boolean);
   function IsSensitive (W : Widget) return Boolean;
   function IsManaged (W : Widget) return Boolean;
   function IsRealized (W : Widget) return Boolean;

   function Parent (W : Widget) return Widget;
   function Name (W : Widget) return String;
   function NameToWidget (Reference : Widget; Names : String) return Widget;
   function DisplayOfObject (W : Widget) return XlibR5.Display;
   function ScreenOfObject (W : Widget) return XlibR5.Screen_Ptr;
   function WindowOfObject (W : Widget) return XlibR5.Window;

   --  Callbacks.  The procedure has convention C and the parameters (Widget, ArgVal, Pointer).

   procedure AddCallback
     (W : Widget; Name : String; Proc : Procedure_Ptr; Client_Data : ArgVal);
   procedure RemoveCallback
     (W : Widget; Name : String; Proc : Procedure_Ptr; Client_Data : ArgVal);
   procedure RemoveAllCallbacks (W : Widget; Name : String);
   procedure CallCallbacks (W : Widget; Name : String; Call_Data : Pointer);

   --  Translations.

   function ParseTranslationTable (Table : String) return Translations;
   procedure OverrideTranslations (W : Widget; Table : Translations);
   procedure AugmentTranslations (W : Widget; Table : Translations);

   --  Gives back what the toolkit has allocated.
   procedure Free (Block : Pointer);

private

   pragma Import (C, SetLanguageProc, "XtSetLanguageProc");
   pragma Import (C, AppMainLoop, "XtAppMainLoop");
   pragma Import (C, AppSetExitFlag, "XtAppSetExitFlag");
   pragma Import (C, DestroyApplicationContext, "XtDestroyApplicationContext");
   pragma Import (C, WidgetToApplicationContext, "XtWidgetToApplicationContext");
   pragma Import (C, AppAddTimeOut, "XtAppAddTimeOut");
   pragma Import (C, RemoveTimeOut, "XtRemoveTimeOut");
   pragma Import (C, DestroyWidget, "XtDestroyWidget");
   pragma Import (C, ManageChild, "XtManageChild");
   pragma Import (C, UnmanageChild, "XtUnmanageChild");
   pragma Import (C, RealizeWidget, "XtRealizeWidget");
   pragma Import (C, UnrealizeWidget, "XtUnrealizeWidget");
   pragma Import (C, MapWidget, "XtMapWidget");
   pragma Import (C, UnmapWidget, "XtUnmapWidget");
   pragma Import (C, Popup, "XtPopup");
   pragma Import (C, Popdown, "XtPopdown");
   pragma Import (C, Parent, "XtParent");
   pragma Import (C, DisplayOfObject, "XtDisplayOfObject");
   pragma Import (C, ScreenOfObject, "XtScreenOfObject");
   pragma Import (C, WindowOfObject, "XtWindowOfObject");
   pragma Import (C, OverrideTranslations, "XtOverrideTranslations");
   pragma Import (C, AugmentTranslations, "XtAugmentTranslations");
   pragma Import (C, Free, "XtFree");

end XtR5;
