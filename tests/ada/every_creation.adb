--  Made by ada/generate/generate.py; not to be changed by hand.
--  Calls every creation function and prints the class of what it gives.

pragma Ada_2012;

with Ada.Text_IO;
with Interfaces.C.Strings;
with XlibR5;
with Xm1_2_2;
with XrmR5;
with XtR5;

procedure Every_Creation is

   --  The head of the record that a class is in C
   type Class_Record is record
      Superclass : XtR5.WidgetClass;
      Name       : Interfaces.C.Strings.chars_ptr;
   end record
     with Convention => C;

   function XtClass (Item : XtR5.Widget) return not null access Class_Record
     with Import, Convention => C, External_Name => "XtClass";

   procedure Report (Name : String; Item : XtR5.Widget) is
   begin
      Ada.Text_IO.Put_Line
        (Name & " " & XtR5.Name (Item) & " " &
         Interfaces.C.Strings.Value (XtClass (Item).Name));
   end Report;

   Argv     : XlibR5.StringList_Ptr := XlibR5.GetArguments;
   Context  : XtR5.AppContext;
   Options  : XrmR5.OptionDescList (1 .. 0);
   Fallback : XlibR5.StringList (1 .. 0);
   Args     : XtR5.ArgList (1 .. 0);
   Shell    : XtR5.Widget;
   Board    : XtR5.Widget;
   Menu     : XtR5.Widget;
begin
   XtR5.AppInitialize
     (Context, "Every_creation", Options, Argv, Fallback, Args, Shell);
   Board := Xm1_2_2.CreateBulletinBoard (Shell, "board", Args, 0);
   Menu := Xm1_2_2.CreatePulldownMenu (Board, "menu", Args, 0);
   Report
     ("CreateArrowButton",
      Xm1_2_2.CreateArrowButton (Board, "it", Args, 0));
   Report
     ("CreateArrowButtonGadget",
      Xm1_2_2.CreateArrowButtonGadget (Board, "it", Args, 0));
   Report
     ("CreateArrowButtonGadgetGadget",
      Xm1_2_2.CreateArrowButtonGadgetGadget (Board, "it", Args, 0));
   Report
     ("CreateBulletinBoard",
      Xm1_2_2.CreateBulletinBoard (Board, "it", Args, 0));
   Report
     ("CreateBulletinBoardDialog",
      Xm1_2_2.CreateBulletinBoardDialog (Board, "it", Args, 0));
   Report
     ("CreateCascadeButton",
      Xm1_2_2.CreateCascadeButton (Menu, "it", Args, 0));
   Report
     ("CreateCascadeButtonGadget",
      Xm1_2_2.CreateCascadeButtonGadget (Menu, "it", Args, 0));
   Report
     ("CreateCascadeButtonGadgetGadget",
      Xm1_2_2.CreateCascadeButtonGadgetGadget (Menu, "it", Args, 0));
   Report
     ("CreateCommand",
      Xm1_2_2.CreateCommand (Board, "it", Args, 0));
   Report
     ("CreateDrawingArea",
      Xm1_2_2.CreateDrawingArea (Board, "it", Args, 0));
   Report
     ("CreateDrawnButton",
      Xm1_2_2.CreateDrawnButton (Board, "it", Args, 0));
   Report
     ("CreateErrorDialog",
      Xm1_2_2.CreateErrorDialog (Board, "it", Args, 0));
   Report
     ("CreateFileSelectionBox",
      Xm1_2_2.CreateFileSelectionBox (Board, "it", Args, 0));
   Report
     ("CreateFileSelectionDialog",
      Xm1_2_2.CreateFileSelectionDialog (Board, "it", Args, 0));
   Report
     ("CreateForm",
      Xm1_2_2.CreateForm (Board, "it", Args, 0));
   Report
     ("CreateFormDialog",
      Xm1_2_2.CreateFormDialog (Board, "it", Args, 0));
   Report
     ("CreateFrame",
      Xm1_2_2.CreateFrame (Board, "it", Args, 0));
   Report
     ("CreateInformationDialog",
      Xm1_2_2.CreateInformationDialog (Board, "it", Args, 0));
   Report
     ("CreateLabel",
      Xm1_2_2.CreateLabel (Board, "it", Args, 0));
   Report
     ("CreateLabelGadget",
      Xm1_2_2.CreateLabelGadget (Board, "it", Args, 0));
   Report
     ("CreateLabelGadgetGadget",
      Xm1_2_2.CreateLabelGadgetGadget (Board, "it", Args, 0));
   Report
     ("CreateList",
      Xm1_2_2.CreateList (Board, "it", Args, 0));
   Report
     ("CreateMainWindow",
      Xm1_2_2.CreateMainWindow (Board, "it", Args, 0));
   Report
     ("CreateMenuBar",
      Xm1_2_2.CreateMenuBar (Board, "it", Args, 0));
   Report
     ("CreateMessageBox",
      Xm1_2_2.CreateMessageBox (Board, "it", Args, 0));
   Report
     ("CreateMessageDialog",
      Xm1_2_2.CreateMessageDialog (Board, "it", Args, 0));
   Report
     ("CreateOptionMenu",
      Xm1_2_2.CreateOptionMenu (Board, "it", Args, 0));
   Report
     ("CreatePanedWindow",
      Xm1_2_2.CreatePanedWindow (Board, "it", Args, 0));
   Report
     ("CreatePopupMenu",
      Xm1_2_2.CreatePopupMenu (Board, "it", Args, 0));
   Report
     ("CreatePromptDialog",
      Xm1_2_2.CreatePromptDialog (Board, "it", Args, 0));
   Report
     ("CreatePulldownMenu",
      Xm1_2_2.CreatePulldownMenu (Board, "it", Args, 0));
   Report
     ("CreatePushButton",
      Xm1_2_2.CreatePushButton (Board, "it", Args, 0));
   Report
     ("CreatePushButtonGadget",
      Xm1_2_2.CreatePushButtonGadget (Board, "it", Args, 0));
   Report
     ("CreatePushButtonGadgetGadget",
      Xm1_2_2.CreatePushButtonGadgetGadget (Board, "it", Args, 0));
   Report
     ("CreateQuestionDialog",
      Xm1_2_2.CreateQuestionDialog (Board, "it", Args, 0));
   Report
     ("CreateRadioBox",
      Xm1_2_2.CreateRadioBox (Board, "it", Args, 0));
   Report
     ("CreateRowColumn",
      Xm1_2_2.CreateRowColumn (Board, "it", Args, 0));
   Report
     ("CreateScale",
      Xm1_2_2.CreateScale (Board, "it", Args, 0));
   Report
     ("CreateScrollBar",
      Xm1_2_2.CreateScrollBar (Board, "it", Args, 0));
   Report
     ("CreateScrolledList",
      Xm1_2_2.CreateScrolledList (Board, "it", Args, 0));
   Report
     ("CreateScrolledText",
      Xm1_2_2.CreateScrolledText (Board, "it", Args, 0));
   Report
     ("CreateScrolledWindow",
      Xm1_2_2.CreateScrolledWindow (Board, "it", Args, 0));
   Report
     ("CreateSelectionBox",
      Xm1_2_2.CreateSelectionBox (Board, "it", Args, 0));
   Report
     ("CreateSelectionDialog",
      Xm1_2_2.CreateSelectionDialog (Board, "it", Args, 0));
   Report
     ("CreateSeparator",
      Xm1_2_2.CreateSeparator (Board, "it", Args, 0));
   Report
     ("CreateSeparatorGadget",
      Xm1_2_2.CreateSeparatorGadget (Board, "it", Args, 0));
   Report
     ("CreateSeparatorGadgetGadget",
      Xm1_2_2.CreateSeparatorGadgetGadget (Board, "it", Args, 0));
   Report
     ("CreateShell",
      Xm1_2_2.CreateShell (Board, "it", Args, 0));
   Report
     ("CreateTearOffButton",
      Xm1_2_2.CreateTearOffButton (Menu, "it", Args, 0));
   Report
     ("CreateTemplateDialog",
      Xm1_2_2.CreateTemplateDialog (Board, "it", Args, 0));
   Report
     ("CreateText",
      Xm1_2_2.CreateText (Board, "it", Args, 0));
   Report
     ("CreateTextField",
      Xm1_2_2.CreateTextField (Board, "it", Args, 0));
   Report
     ("CreateToggleButton",
      Xm1_2_2.CreateToggleButton (Board, "it", Args, 0));
   Report
     ("CreateToggleButtonGadget",
      Xm1_2_2.CreateToggleButtonGadget (Board, "it", Args, 0));
   Report
     ("CreateToggleButtonGadgetGadget",
      Xm1_2_2.CreateToggleButtonGadgetGadget (Board, "it", Args, 0));
   Report
     ("CreateWarningDialog",
      Xm1_2_2.CreateWarningDialog (Board, "it", Args, 0));
   Report
     ("CreateWorkArea",
      Xm1_2_2.CreateWorkArea (Board, "it", Args, 0));
   Report
     ("CreateWorkingDialog",
      Xm1_2_2.CreateWorkingDialog (Board, "it", Args, 0));
   Report
     ("CreateansientShell",
      Xm1_2_2.CreateansientShell (Board, "it", Args, 0));
   Report
     ("Createell",
      Xm1_2_2.Createell (Board, "it", Args, 0));
   Report
     ("CreateerrideShell",
      Xm1_2_2.CreateerrideShell (Board, "it", Args, 0));
   Report
     ("CreatendorShell",
      Xm1_2_2.CreatendorShell (Board, "it", Args, 0));
   Report
     ("CreatepLevelShell",
      Xm1_2_2.CreatepLevelShell (Board, "it", Args, 0));
   Report
     ("CreateplicationShell",
      Xm1_2_2.CreateplicationShell (Board, "it", Args, 0));
end Every_Creation;
