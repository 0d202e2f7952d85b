with Ask;
with Probe; use Probe;
with Xm;

package body Ask_Callbacks is

   --  The head of the toolkit's XmSelectionBoxCallbackStruct.
   type Selection_Data is record
      Any  : Xm.AnyCallbackStruct;
      Text : Xm.XmString;
   end record
     with Convention => C;

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Listen;

   --  The dialogs are created with the program and stand in the list of its windows.
   procedure Open_Cb (W : XtR5.Widget; Client_Data : Integer; Call_Data : XtR5.Pointer) is
      Dialog : constant XtR5.Widget := Ask.Widgets.Child_Lists (Client_Data) (1);
   begin
      Say (Ask.Widgets.Shell_Names (Client_Data).all);
      XtR5.ManageChild (Dialog);
   end Open_Cb;

   procedure Answer_Cb (W : XtR5.Widget; Client_Data : String; Call_Data : XtR5.Pointer) is
   begin
      Say (Plain (Client_Data));
   end Answer_Cb;

   procedure Name_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer)
   is
      Data : Selection_Data
        with Import, Address => Call_Data;
   begin
      Say (XtR5.Name (W) & " " & Text_Of (Data.Text));
   end Name_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Quit;

end Ask_Callbacks;
