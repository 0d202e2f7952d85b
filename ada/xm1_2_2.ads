--  Made by ada/generate/generate.py; not to be changed by hand.
--  The toolkit's functions, class objects and constants that the
--  translator's units name.

pragma Ada_2012;

with XlibR5;
with Xm;
with XtR5;

package Xm1_2_2 is

   --  Types, strings, font lists and pixmaps, which are those of package Xm

   subtype XmString is Xm.XmString;
   subtype XmStringList is Xm.XmStringList;
   subtype FontList is Xm.FontList;
   subtype FontListEntry is Xm.FontListEntry;
   subtype AnyCallbackStruct is Xm.AnyCallbackStruct;

   function StringSegmentCreate
     (Text      : Standard.String;
      Tag       : Standard.String;
      Direction : Integer;
      Separator : Boolean) return XmString
     renames Xm.StringSegmentCreate;
   function StringCopy (Text : XmString) return XmString
     renames Xm.StringCopy;
   function StringConcat (Left, Right : XmString) return XmString
     renames Xm.StringConcat;
   procedure StringFree (Text : XmString)
     renames Xm.StringFree;

   function FontListEntryCreate
     (Tag  : Standard.String;
      Kind : Xm.FontType;
      Font : XtR5.Pointer) return FontListEntry
     renames Xm.FontListEntryCreate;
   function FontListAppendEntry
     (List : FontList;
      Item : FontListEntry) return FontList
     renames Xm.FontListAppendEntry;

   function GetPixmapByDepth
     (Screen     : XlibR5.Screen_Ptr;
      Name       : Standard.String;
      Foreground : XlibR5.Pixel;
      Background : XlibR5.Pixel;
      Depth      : Integer) return XlibR5.Pixmap
     renames Xm.GetPixmapByDepth;

   --  Constants, with the values of the headers
   --  The translator writes other values for: DIALOG_CANCEL_BUTTON (0),
   --  DIALOG_DEFAULT_BUTTON (0), DIALOG_HELP_BUTTON (0), DIALOG_MESSAGE_LABEL
   --  (0), DIALOG_OK_BUTTON (0), DIALOG_SEPARATOR (0), DIALOG_SYMBOL_LABEL
   --  (0)

   Xm1000TH_INCHES : constant := 2;
   Xm100TH_FONT_UNITS : constant := 4;
   Xm100TH_MILLIMETERS : constant := 1;
   Xm100TH_POINTS : constant := 3;
   ALIGNMENT_BASELINE_BOTTOM : constant := 2;
   ALIGNMENT_BASELINE_TOP : constant := 0;
   ALIGNMENT_BEGINNING : constant := 0;
   ALIGNMENT_CENTER : constant := 1;
   ALIGNMENT_CONTENTS_BOTTOM : constant := 4;
   ALIGNMENT_CONTENTS_TOP : constant := 3;
   ALIGNMENT_END : constant := 2;
   ALIGNMENT_WIDGET_BOTTOM : constant := 4;
   ALIGNMENT_WIDGET_TOP : constant := 3;
   APPLICATION_DEFINED : constant := 1;
   ARROW_DOWN : constant := 1;
   ARROW_LEFT : constant := 2;
   ARROW_RIGHT : constant := 3;
   ARROW_UP : constant := 0;
   AS_NEEDED : constant := 1;
   ATTACH_FORM : constant := 1;
   ATTACH_NONE : constant := 0;
   ATTACH_OPPOSITE_FORM : constant := 2;
   ATTACH_OPPOSITE_WIDGET : constant := 4;
   ATTACH_POSITION : constant := 5;
   ATTACH_SELF : constant := 6;
   ATTACH_WIDGET : constant := 3;
   AUTOMATIC : constant := 0;
   BOTTOM_LEFT : constant := 2;
   BOTTOM_RIGHT : constant := 0;
   BROWSE_SELECT : constant := 3;
   CHANGE_ALL : constant := 0;
   CHANGE_HEIGHT : constant := 3;
   CHANGE_NONE : constant := 1;
   CHANGE_WIDTH : constant := 2;
   COMMAND_ABOVE_WORKSPACE : constant := 0;
   COMMAND_BELOW_WORKSPACE : constant := 1;
   XmCONSTANT : constant := 1;
   CR_ACTIVATE : constant := 10;
   CR_APPLY : constant := 34;
   CR_ARM : constant := 11;
   CR_BROWSE_SELECT : constant := 26;
   CR_CANCEL : constant := 32;
   CR_CASCADING : constant := 30;
   CR_CLIPBOARD_DATA_DELETE : constant := 29;
   CR_CLIPBOARD_DATA_REQUEST : constant := 28;
   CR_COLLAPSED : constant := 55;
   CR_COMMAND_CHANGED : constant := 37;
   CR_COMMAND_ENTERED : constant := 36;
   CR_CREATE : constant := 43;
   CR_DECREMENT : constant := 4;
   CR_DEFAULT_ACTION : constant := 27;
   CR_DISARM : constant := 12;
   CR_DRAG : constant := 9;
   CR_DRAG_DROP_FINISH : constant := 7;
   CR_DRAG_MOTION : constant := 2;
   CR_DRAG_START : constant := 58;
   CR_DROP_FINISH : constant := 6;
   CR_DROP_MESSAGE : constant := 4;
   CR_DROP_SITE_ENTER : constant := 3;
   CR_DROP_SITE_ENTER_MESSAGE : constant := 2;
   CR_DROP_SITE_LEAVE : constant := 4;
   CR_DROP_SITE_LEAVE_MESSAGE : constant := 1;
   CR_DROP_SITE_MOTION_MESSAGE : constant := 3;
   CR_DROP_START : constant := 5;
   CR_END_JOB : constant := 71;
   CR_ENTER_CHILD : constant := 85;
   CR_EXECUTE : constant := 22;
   CR_EXPANDED : constant := 56;
   CR_EXPOSE : constant := 38;
   CR_EXTENDED_SELECT : constant := 25;
   CR_FOCUS : constant := 18;
   CR_FOCUS_MOVED : constant := 47;
   CR_GAIN_PRIMARY : constant := 41;
   CR_HELP : constant := 1;
   CR_INCREMENT : constant := 3;
   CR_INPUT : constant := 40;
   CR_LEAVE_CHILD : constant := 86;
   CR_LOSE_PRIMARY : constant := 42;
   CR_LOSING_FOCUS : constant := 19;
   CR_MAJOR_TAB : constant := 68;
   CR_MAP : constant := 16;
   CR_MINOR_TAB : constant := 69;
   CR_MODIFYING_TEXT_VALUE : constant := 20;
   CR_MOVING_INSERT_CURSOR : constant := 21;
   CR_MULTIPLE_SELECT : constant := 24;
   CR_NONE : constant := 0;
   CR_NO_FONT : constant := 59;
   CR_NO_MATCH : constant := 35;
   CR_NO_RENDITION : constant := 60;
   CR_OBSCURED_TRAVERSAL : constant := 46;
   CR_OK : constant := 31;
   CR_OPERATION_CHANGED : constant := 8;
   CR_PAGE_DECREMENT : constant := 6;
   CR_PAGE_INCREMENT : constant := 5;
   CR_PAGE_SCROLLER_DECREMENT : constant := 67;
   CR_PAGE_SCROLLER_INCREMENT : constant := 66;
   CR_PAGE_SETUP : constant := 72;
   CR_PDM_CANCEL : constant := 79;
   CR_PDM_EXIT_ERROR : constant := 80;
   CR_PDM_NONE : constant := 73;
   CR_PDM_OK : constant := 78;
   CR_PDM_START_ERROR : constant := 75;
   CR_PDM_START_PXAUTH : constant := 77;
   CR_PDM_START_VXAUTH : constant := 76;
   CR_PDM_UP : constant := 74;
   CR_POST : constant := 61;
   CR_PROTOCOLS : constant := 6666;
   CR_REPOST : constant := 54;
   CR_RESIZE : constant := 39;
   CR_SELECT : constant := 57;
   CR_SINGLE_SELECT : constant := 23;
   CR_SPIN_FIRST : constant := 64;
   CR_SPIN_LAST : constant := 65;
   CR_SPIN_NEXT : constant := 62;
   CR_SPIN_PRIOR : constant := 63;
   CR_START_JOB : constant := 70;
   CR_TAB_SELECTED : constant := 0;
   CR_TAB_UNSELECTED : constant := 1;
   CR_TEAR_OFF_ACTIVATE : constant := 44;
   CR_TEAR_OFF_DEACTIVATE : constant := 45;
   CR_TOP_LEVEL_ENTER : constant := 0;
   CR_TOP_LEVEL_LEAVE : constant := 1;
   CR_TO_BOTTOM : constant := 8;
   CR_TO_TOP : constant := 7;
   CR_UNMAP : constant := 17;
   CR_UPDATE_SHELL : constant := 81;
   CR_UPDATE_TEXT : constant := 82;
   CR_VALUE_CHANGED : constant := 2;
   CR_VERIFY_TEXT : constant := 83;
   CR_VERIFY_TEXT_FAILED : constant := 84;
   CR_WM_PROTOCOLS : constant := 6666;
   DIALOG_APPLICATION_MODAL : constant := 1;
   DIALOG_APPLY_BUTTON : constant := 1;
   DIALOG_CANCEL_BUTTON : constant := 2;
   DIALOG_COMMAND : constant := 3;
   DIALOG_DEFAULT_BUTTON : constant := 3;
   DIALOG_DIR_LIST : constant := 15;
   DIALOG_DIR_LIST_LABEL : constant := 16;
   DIALOG_ERROR : constant := 1;
   DIALOG_FILE_SELECTION : constant := 4;
   DIALOG_FILTER_LABEL : constant := 5;
   DIALOG_FILTER_TEXT : constant := 6;
   DIALOG_FULL_APPLICATION_MODAL : constant := 2;
   DIALOG_HELP_BUTTON : constant := 7;
   DIALOG_INFORMATION : constant := 2;
   DIALOG_LIST : constant := 8;
   DIALOG_LIST_LABEL : constant := 9;
   DIALOG_MESSAGE : constant := 3;
   DIALOG_MESSAGE_LABEL : constant := 10;
   DIALOG_MODELESS : constant := 0;
   DIALOG_OK_BUTTON : constant := 4;
   DIALOG_PRIMARY_APPLICATION_MODAL : constant := 1;
   DIALOG_PROMPT : constant := 1;
   DIALOG_QUESTION : constant := 4;
   DIALOG_SELECTION : constant := 2;
   DIALOG_SELECTION_LABEL : constant := 11;
   DIALOG_SEPARATOR : constant := 14;
   DIALOG_SYMBOL_LABEL : constant := 12;
   DIALOG_SYSTEM_MODAL : constant := 3;
   DIALOG_TEXT : constant := 13;
   DIALOG_WARNING : constant := 5;
   DIALOG_WORKING : constant := 6;
   DIALOG_WORK_AREA : constant := 0;
   DOUBLE_DASHED_LINE : constant := 4;
   DOUBLE_LINE : constant := 2;
   DYNAMIC : constant := 1;
   EXCLUSIVE_TAB_GROUP : constant := 3;
   EXTENDED_SELECT : constant := 2;
   FILE_ANY_TYPE : constant := 3;
   FILE_DIRECTORY : constant := 1;
   FILE_REGULAR : constant := 2;
   FRAME_GENERIC_CHILD : constant := 0;
   FRAME_TITLE_CHILD : constant := 2;
   FRAME_WORKAREA_CHILD : constant := 1;
   HORIZONTAL : constant := 2;
   MAX_ON_BOTTOM : constant := 1;
   MAX_ON_LEFT : constant := 2;
   MAX_ON_RIGHT : constant := 3;
   MAX_ON_TOP : constant := 0;
   MENU_BAR : constant := 1;
   MENU_OPTION : constant := 4;
   MENU_POPUP : constant := 3;
   MENU_PULLDOWN : constant := 2;
   MULTIPLE_SELECT : constant := 1;
   MULTI_LINE_EDIT : constant := 0;
   NONE : constant := 0;
   NO_LINE : constant := 0;
   NO_ORIENTATION : constant := 0;
   NO_PACKING : constant := 0;
   N_OF_MANY : constant := 1;
   ONE_OF_MANY : constant := 2;
   PACK_COLUMN : constant := 2;
   PACK_NONE : constant := 3;
   PACK_TIGHT : constant := 1;
   PIXELS : constant := 0;
   PIXMAP : constant := 1;
   RESIZE_ANY : constant := 2;
   RESIZE_GROW : constant := 1;
   RESIZE_IF_POSSIBLE : constant := 2;
   RESIZE_NONE : constant := 0;
   SHADOW_ETCHED_IN : constant := 5;
   SHADOW_ETCHED_OUT : constant := 6;
   SHADOW_IN : constant := 7;
   SHADOW_OUT : constant := 8;
   SINGLE_DASHED_LINE : constant := 3;
   SINGLE_LINE : constant := 1;
   SINGLE_LINE_EDIT : constant := 1;
   SINGLE_SELECT : constant := 0;
   STATIC : constant := 0;
   STICKY_TAB_GROUP : constant := 2;
   STRING : constant := 2;
   STRING_DIRECTION_L_TO_R : constant := 0;
   STRING_DIRECTION_R_TO_L : constant := 1;
   TAB_GROUP : constant := 1;
   TEAR_OFF_DISABLED : constant := 1;
   TEAR_OFF_ENABLED : constant := 0;
   TOP_LEFT : constant := 3;
   TOP_RIGHT : constant := 1;
   TRAVERSE_CURRENT : constant := 0;
   TRAVERSE_DOWN : constant := 7;
   TRAVERSE_HOME : constant := 3;
   TRAVERSE_LEFT : constant := 8;
   TRAVERSE_NEXT : constant := 1;
   TRAVERSE_NEXT_TAB_GROUP : constant := 4;
   TRAVERSE_PREV : constant := 2;
   TRAVERSE_PREV_TAB_GROUP : constant := 5;
   TRAVERSE_RIGHT : constant := 9;
   TRAVERSE_UP : constant := 6;
   VARIABLE : constant := 0;
   VERTICAL : constant := 1;
   WORK_AREA : constant := 0;

   --  Class objects, also of classes that share one
   ApplicationShellWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "applicationShellWidgetClass";
   ArrowButtonGadgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmArrowButtonGadgetClass";
   ArrowButtonWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmArrowButtonWidgetClass";
   BulletinBoardDialogwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmBulletinBoardWidgetClass";
   BulletinBoardWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmBulletinBoardWidgetClass";
   CascadeButtonGadgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmCascadeButtonGadgetClass";
   CascadeButtonWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmCascadeButtonWidgetClass";
   ColumnWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmColumnWidgetClass";
   ComboBoxWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmComboBoxWidgetClass";
   CommandWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmCommandWidgetClass";
   CompositeWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "compositeWidgetClass";
   ConstraintWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "constraintWidgetClass";
   ContainerWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmContainerWidgetClass";
   CoreWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "coreWidgetClass";
   DataFieldWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmDataFieldWidgetClass";
   DialogShellWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmDialogShellWidgetClass";
   DisplayClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmDisplayClass";
   DragContextClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmDragContextClass";
   DragIconObjectClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmDragIconObjectClass";
   DragOverShellWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmDragOverShellWidgetClass";
   DrawingAreaWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmDrawingAreaWidgetClass";
   DrawnButtonWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmDrawnButtonWidgetClass";
   DropSiteManagerObjectClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmDropSiteManagerObjectClass";
   DropTransferObjectClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmDropTransferObjectClass";
   ErrorDialogwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmMessageBoxWidgetClass";
   ExtObjectClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmExtObjectClass";
   FileSelectionBoxWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmFileSelectionBoxWidgetClass";
   FileSelectionDialogwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmFileSelectionBoxWidgetClass";
   FormDialogwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmFormWidgetClass";
   FormWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmFormWidgetClass";
   FrameWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmFrameWidgetClass";
   GadgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmGadgetClass";
   GrabShellWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmGrabShellWidgetClass";
   IconButtonWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmIconButtonWidgetClass";
   IconGadgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmIconGadgetClass";
   IconHeaderClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmIconHeaderClass";
   InformationDialogwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmMessageBoxWidgetClass";
   LabelGadgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmLabelGadgetClass";
   LabelWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmLabelWidgetClass";
   ListWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmListWidgetClass";
   MainWindowWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmMainWindowWidgetClass";
   ManagerWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmManagerWidgetClass";
   MenuBarwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmRowColumnWidgetClass";
   MenuShellWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmMenuShellWidgetClass";
   MessageBoxWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmMessageBoxWidgetClass";
   MessageDialogwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmMessageBoxWidgetClass";
   NotebookWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmNotebookWidgetClass";
   ObjectClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "objectClass";
   OptionMenuwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmRowColumnWidgetClass";
   OverrideShellWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "overrideShellWidgetClass";
   PanedWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmPanedWidgetClass";
   PanedWindowWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmPanedWindowWidgetClass";
   PopupMenuwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmRowColumnWidgetClass";
   PrimitiveWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmPrimitiveWidgetClass";
   PromptDialogwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmSelectionBoxWidgetClass";
   PulldownMenuwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmRowColumnWidgetClass";
   PushButtonGadgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmPushButtonGadgetClass";
   PushButtonWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmPushButtonWidgetClass";
   QuestionDialogwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmMessageBoxWidgetClass";
   RadioBoxwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmRowColumnWidgetClass";
   RectObjClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "rectObjClass";
   RowColumnWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmRowColumnWidgetClass";
   SashWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmSashWidgetClass";
   ScaleWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmScaleWidgetClass";
   ScreenClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmScreenClass";
   ScrollBarWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmScrollBarWidgetClass";
   ScrolledListwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmListWidgetClass";
   ScrolledTextwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmTextWidgetClass";
   ScrolledWindowWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmScrolledWindowWidgetClass";
   SelectionBoxWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmSelectionBoxWidgetClass";
   SelectionDialogwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmSelectionBoxWidgetClass";
   SeparatorGadgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmSeparatorGadgetClass";
   SeparatorWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmSeparatorWidgetClass";
   SessionShellWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "sessionShellWidgetClass";
   ShellWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "shellWidgetClass";
   SimpleSpinBoxWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmSimpleSpinBoxWidgetClass";
   SpinBoxWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmSpinBoxWidgetClass";
   TabBoxWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmTabBoxWidgetClass";
   TabStackWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmTabStackWidgetClass";
   TearOffButtonWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmTearOffButtonWidgetClass";
   TemplateDialogwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmMessageBoxWidgetClass";
   TextFieldWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmTextFieldWidgetClass";
   TextWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmTextWidgetClass";
   ToggleButtonGadgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmToggleButtonGadgetClass";
   ToggleButtonWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmToggleButtonWidgetClass";
   TopLevelShellWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "topLevelShellWidgetClass";
   TransientShellWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "transientShellWidgetClass";
   VendorShellWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "vendorShellWidgetClass";
   WarningDialogwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmMessageBoxWidgetClass";
   WidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "widgetClass";
   WmShellWidgetClass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "wmShellWidgetClass";
   WorkAreawidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmRowColumnWidgetClass";
   WorkingDialogwidgetclass : constant XtR5.WidgetClass
     with Import, Convention => C,
          External_Name => "xmMessageBoxWidgetClass";

   --  Children that widgets create by themselves

   function FileSelectionBoxGetChild
     (Parent : XtR5.Widget;
      Child  : Integer) return XtR5.Widget;
   function MessageBoxGetChild
     (Parent : XtR5.Widget;
      Child  : Integer) return XtR5.Widget;
   function SelectionBoxGetChild
     (Parent : XtR5.Widget;
      Child  : Integer) return XtR5.Widget;

   --  Creation of widgets, under all names that the units know

   function CreateArrowButton
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateArrowButtonGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateArrowButtonGadgetGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateBulletinBoard
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateBulletinBoardDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateCascadeButton
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateCascadeButtonGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateCascadeButtonGadgetGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateCommand
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateDrawingArea
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateDrawnButton
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateErrorDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateFileSelectionBox
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateFileSelectionDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateForm
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateFormDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateFrame
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateInformationDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateLabel
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateLabelGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateLabelGadgetGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateList
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateMainWindow
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateMenuBar
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateMessageBox
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateMessageDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateOptionMenu
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreatePanedWindow
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreatePopupMenu
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreatePromptDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreatePulldownMenu
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreatePushButton
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreatePushButtonGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreatePushButtonGadgetGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateQuestionDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateRadioBox
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateRowColumn
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateScale
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateScrollBar
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateScrolledList
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateScrolledText
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateScrolledWindow
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateSelectionBox
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateSelectionDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateSeparator
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateSeparatorGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateSeparatorGadgetGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateShell
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateTearOffButton
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateTemplateDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateText
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateTextField
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateToggleButton
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateToggleButtonGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateToggleButtonGadgetGadget
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateWarningDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateWorkArea
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateWorkingDialog
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateansientShell
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function Createell
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateerrideShell
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreatendorShell
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreatepLevelShell
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;
   function CreateplicationShell
     (Parent : XtR5.Widget;
      Name   : Standard.String;
      Args   : XtR5.ArgList;
      Nargs  : Integer) return XtR5.Widget;

end Xm1_2_2;
