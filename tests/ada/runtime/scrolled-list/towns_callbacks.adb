with Probe; use Probe;
with Xm;

package body Towns_Callbacks is

   --  The head of the toolkit's XmListCallbackStruct.
   type List_Data is record
      Any      : Xm.AnyCallbackStruct;
      Item     : Xm.XmString;
      Length   : Integer;
      Position : Integer;
   end record
     with Convention => C;

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Listen;

   procedure Chosen_Cb (W : XtR5.Widget; Client_Data : String; Call_Data : XtR5.Pointer) is
      Data : List_Data
        with Import, Address => Call_Data;
   begin
      Say (Plain (Client_Data) & Data.Position'Image & " " & Text_Of (Data.Item));
   end Chosen_Cb;

   --  All the items, those that are selected, and how many the list takes itself to have.
   procedure Count_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer)
   is
      procedure Read (Table, Count : String) is
         Items : Xm.XmStringList (1 .. Number (Client_Data, Count))
           with Import, Address => Handle (Client_Data, Table);
      begin
         Say (Table & Items'Length'Image);
         for Item of Items loop
            Say (Text_Of (Item));
         end loop;
      end Read;
   begin
      Read ("items", "itemCount");
      Read ("selectedItems", "selectedItemCount");
   end Count_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Quit;

end Towns_Callbacks;
