--  Made by ada/generate/generate.py; not to be changed by hand.

pragma Ada_2012;

with Interfaces.C;
with System;

package body Xm1_2_2 is

   --  The signature that the toolkit's creation functions share

   type Creator is access function
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Convention => C;

   function Created
     (By     : Creator;
      Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is
      Text : constant Standard.String := XlibR5.C_Text (Name);
   begin
      return By (Parent, Text'Address, Args'Address, Interfaces.C.unsigned (Nargs));
   end Created;

   function Child_Created
     (Class  : XtR5.WidgetClass;
      Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (XtR5.CreateWidget (Name, Class, Parent, Args, Nargs));

   --  A shell is no child in the toolkit's sense: any widget can have it as a popup

   function Shell_Created
     (Class  : XtR5.WidgetClass;
      Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (XtR5.CreatePopupShell
         (Name, Class, Parent, Args (Args'First .. Args'First + Nargs - 1)));

   function XmCreateArrowButton
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateArrowButton";

   function XmCreateArrowButtonGadget
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateArrowButtonGadget";

   function XmCreateBulletinBoard
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateBulletinBoard";

   function XmCreateBulletinBoardDialog
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateBulletinBoardDialog";

   function XmCreateCascadeButton
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateCascadeButton";

   function XmCreateCascadeButtonGadget
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateCascadeButtonGadget";

   function XmCreateCommand
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateCommand";

   function XmCreateDrawingArea
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateDrawingArea";

   function XmCreateDrawnButton
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateDrawnButton";

   function XmCreateErrorDialog
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateErrorDialog";

   function XmCreateFileSelectionBox
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateFileSelectionBox";

   function XmCreateFileSelectionDialog
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateFileSelectionDialog";

   function XmCreateForm
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateForm";

   function XmCreateFormDialog
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateFormDialog";

   function XmCreateFrame
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateFrame";

   function XmCreateInformationDialog
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateInformationDialog";

   function XmCreateLabel
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateLabel";

   function XmCreateLabelGadget
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateLabelGadget";

   function XmCreateList
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateList";

   function XmCreateMainWindow
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateMainWindow";

   function XmCreateMenuBar
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateMenuBar";

   function XmCreateMessageBox
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateMessageBox";

   function XmCreateMessageDialog
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateMessageDialog";

   function XmCreateOptionMenu
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateOptionMenu";

   function XmCreatePanedWindow
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreatePanedWindow";

   function XmCreatePopupMenu
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreatePopupMenu";

   function XmCreatePromptDialog
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreatePromptDialog";

   function XmCreatePulldownMenu
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreatePulldownMenu";

   function XmCreatePushButton
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreatePushButton";

   function XmCreatePushButtonGadget
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreatePushButtonGadget";

   function XmCreateQuestionDialog
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateQuestionDialog";

   function XmCreateRadioBox
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateRadioBox";

   function XmCreateRowColumn
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateRowColumn";

   function XmCreateScale
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateScale";

   function XmCreateScrollBar
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateScrollBar";

   function XmCreateScrolledList
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateScrolledList";

   function XmCreateScrolledText
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateScrolledText";

   function XmCreateScrolledWindow
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateScrolledWindow";

   function XmCreateSelectionBox
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateSelectionBox";

   function XmCreateSelectionDialog
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateSelectionDialog";

   function XmCreateSeparator
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateSeparator";

   function XmCreateSeparatorGadget
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateSeparatorGadget";

   function XmCreateTemplateDialog
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateTemplateDialog";

   function XmCreateText
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateText";

   function XmCreateTextField
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateTextField";

   function XmCreateToggleButton
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateToggleButton";

   function XmCreateToggleButtonGadget
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateToggleButtonGadget";

   function XmCreateWarningDialog
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateWarningDialog";

   function XmCreateWorkArea
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateWorkArea";

   function XmCreateWorkingDialog
     (Parent : XtR5.Widget;
      Name   : System.Address;
      Args   : System.Address;
      Nargs  : Interfaces.C.unsigned) return XtR5.Widget
     with Import, Convention => C, External_Name => "XmCreateWorkingDialog";

   --  Children that widgets create by themselves

   function FileSelectionBoxGetChild
     (Parent : XtR5.Widget;
      Child  : Integer) return XtR5.Widget
   is
      function C_Get
        (Parent : XtR5.Widget;
         Child  : Interfaces.C.unsigned_char) return XtR5.Widget
        with Import, Convention => C, External_Name => "XmFileSelectionBoxGetChild";
   begin
      return C_Get (Parent, Interfaces.C.unsigned_char (Child));
   end FileSelectionBoxGetChild;

   function MessageBoxGetChild
     (Parent : XtR5.Widget;
      Child  : Integer) return XtR5.Widget
   is
      function C_Get
        (Parent : XtR5.Widget;
         Child  : Interfaces.C.unsigned_char) return XtR5.Widget
        with Import, Convention => C, External_Name => "XmMessageBoxGetChild";
   begin
      return C_Get (Parent, Interfaces.C.unsigned_char (Child));
   end MessageBoxGetChild;

   function SelectionBoxGetChild
     (Parent : XtR5.Widget;
      Child  : Integer) return XtR5.Widget
   is
      function C_Get
        (Parent : XtR5.Widget;
         Child  : Interfaces.C.unsigned_char) return XtR5.Widget
        with Import, Convention => C, External_Name => "XmSelectionBoxGetChild";
   begin
      return C_Get (Parent, Interfaces.C.unsigned_char (Child));
   end SelectionBoxGetChild;

   --  Creation of widgets

   function CreateArrowButton
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateArrowButton'Access, Parent, Name, Args, Nargs));

   function CreateArrowButtonGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateArrowButtonGadget'Access, Parent, Name, Args, Nargs));

   function CreateArrowButtonGadgetGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateArrowButtonGadget'Access, Parent, Name, Args, Nargs));

   function CreateBulletinBoard
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateBulletinBoard'Access, Parent, Name, Args, Nargs));

   function CreateBulletinBoardDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateBulletinBoardDialog'Access, Parent, Name, Args, Nargs));

   function CreateCascadeButton
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateCascadeButton'Access, Parent, Name, Args, Nargs));

   function CreateCascadeButtonGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateCascadeButtonGadget'Access, Parent, Name, Args, Nargs));

   function CreateCascadeButtonGadgetGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateCascadeButtonGadget'Access, Parent, Name, Args, Nargs));

   function CreateCommand
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateCommand'Access, Parent, Name, Args, Nargs));

   function CreateDrawingArea
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateDrawingArea'Access, Parent, Name, Args, Nargs));

   function CreateDrawnButton
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateDrawnButton'Access, Parent, Name, Args, Nargs));

   function CreateErrorDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateErrorDialog'Access, Parent, Name, Args, Nargs));

   function CreateFileSelectionBox
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateFileSelectionBox'Access, Parent, Name, Args, Nargs));

   function CreateFileSelectionDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateFileSelectionDialog'Access, Parent, Name, Args, Nargs));

   function CreateForm
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateForm'Access, Parent, Name, Args, Nargs));

   function CreateFormDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateFormDialog'Access, Parent, Name, Args, Nargs));

   function CreateFrame
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateFrame'Access, Parent, Name, Args, Nargs));

   function CreateInformationDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateInformationDialog'Access, Parent, Name, Args, Nargs));

   function CreateLabel
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateLabel'Access, Parent, Name, Args, Nargs));

   function CreateLabelGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateLabelGadget'Access, Parent, Name, Args, Nargs));

   function CreateLabelGadgetGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateLabelGadget'Access, Parent, Name, Args, Nargs));

   function CreateList
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateList'Access, Parent, Name, Args, Nargs));

   function CreateMainWindow
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateMainWindow'Access, Parent, Name, Args, Nargs));

   function CreateMenuBar
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateMenuBar'Access, Parent, Name, Args, Nargs));

   function CreateMessageBox
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateMessageBox'Access, Parent, Name, Args, Nargs));

   function CreateMessageDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateMessageDialog'Access, Parent, Name, Args, Nargs));

   function CreateOptionMenu
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateOptionMenu'Access, Parent, Name, Args, Nargs));

   function CreatePanedWindow
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreatePanedWindow'Access, Parent, Name, Args, Nargs));

   function CreatePopupMenu
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreatePopupMenu'Access, Parent, Name, Args, Nargs));

   function CreatePromptDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreatePromptDialog'Access, Parent, Name, Args, Nargs));

   function CreatePulldownMenu
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreatePulldownMenu'Access, Parent, Name, Args, Nargs));

   function CreatePushButton
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreatePushButton'Access, Parent, Name, Args, Nargs));

   function CreatePushButtonGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreatePushButtonGadget'Access, Parent, Name, Args, Nargs));

   function CreatePushButtonGadgetGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreatePushButtonGadget'Access, Parent, Name, Args, Nargs));

   function CreateQuestionDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateQuestionDialog'Access, Parent, Name, Args, Nargs));

   function CreateRadioBox
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateRadioBox'Access, Parent, Name, Args, Nargs));

   function CreateRowColumn
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateRowColumn'Access, Parent, Name, Args, Nargs));

   function CreateScale
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateScale'Access, Parent, Name, Args, Nargs));

   function CreateScrollBar
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateScrollBar'Access, Parent, Name, Args, Nargs));

   function CreateScrolledList
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateScrolledList'Access, Parent, Name, Args, Nargs));

   function CreateScrolledText
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateScrolledText'Access, Parent, Name, Args, Nargs));

   function CreateScrolledWindow
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateScrolledWindow'Access, Parent, Name, Args, Nargs));

   function CreateSelectionBox
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateSelectionBox'Access, Parent, Name, Args, Nargs));

   function CreateSelectionDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateSelectionDialog'Access, Parent, Name, Args, Nargs));

   function CreateSeparator
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateSeparator'Access, Parent, Name, Args, Nargs));

   function CreateSeparatorGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateSeparatorGadget'Access, Parent, Name, Args, Nargs));

   function CreateSeparatorGadgetGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateSeparatorGadget'Access, Parent, Name, Args, Nargs));

   function CreateShell
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Shell_Created (WmShellWidgetClass, Parent, Name, Args, Nargs));

   function CreateTearOffButton
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Child_Created (TearOffButtonWidgetClass, Parent, Name, Args, Nargs));

   function CreateTemplateDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateTemplateDialog'Access, Parent, Name, Args, Nargs));

   function CreateText
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateText'Access, Parent, Name, Args, Nargs));

   function CreateTextField
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateTextField'Access, Parent, Name, Args, Nargs));

   function CreateToggleButton
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateToggleButton'Access, Parent, Name, Args, Nargs));

   function CreateToggleButtonGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateToggleButtonGadget'Access, Parent, Name, Args, Nargs));

   function CreateToggleButtonGadgetGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateToggleButtonGadget'Access, Parent, Name, Args, Nargs));

   function CreateWarningDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateWarningDialog'Access, Parent, Name, Args, Nargs));

   function CreateWorkArea
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateWorkArea'Access, Parent, Name, Args, Nargs));

   function CreateWorkingDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Created (XmCreateWorkingDialog'Access, Parent, Name, Args, Nargs));

   function CreateansientShell
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Shell_Created (TransientShellWidgetClass, Parent, Name, Args, Nargs));

   function Createell
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Shell_Created (ShellWidgetClass, Parent, Name, Args, Nargs));

   function CreateerrideShell
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Shell_Created (OverrideShellWidgetClass, Parent, Name, Args, Nargs));

   function CreatendorShell
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Shell_Created (VendorShellWidgetClass, Parent, Name, Args, Nargs));

   function CreatepLevelShell
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Shell_Created (TopLevelShellWidgetClass, Parent, Name, Args, Nargs));

   function CreateplicationShell
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget
   is (Shell_Created (ApplicationShellWidgetClass, Parent, Name, Args, Nargs));

end Xm1_2_2;
