with Probe; use Probe;

package body Tags_Callbacks is

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Listen;

   procedure Flag_Cb (W : XtR5.Widget; Client_Data : Boolean; Call_Data : XtR5.Pointer) is
   begin
      Say (XtR5.Name (W) & " is " & Client_Data'Image);
   end Flag_Cb;

   procedure Number_Cb (W : XtR5.Widget; Client_Data : Integer; Call_Data : XtR5.Pointer) is
   begin
      Say (XtR5.Name (W) & " is" & Client_Data'Image);
   end Number_Cb;

   procedure Name_Cb (W : XtR5.Widget; Client_Data : String; Call_Data : XtR5.Pointer) is
   begin
      Say (XtR5.Name (W) & " is " & Plain (Client_Data));
   end Name_Cb;

   procedure Title_Cb
     (W : XtR5.Widget; Client_Data : Xm1_2_2.XmString; Call_Data : XtR5.Pointer) is
   begin
      Say (XtR5.Name (W) & " is " & Text_Of (Client_Data));
   end Title_Cb;

   procedure Widget_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) is
   begin
      Say (XtR5.Name (W) & " is " & XtR5.Name (Client_Data));
   end Widget_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer)
   is
      use type XtR5.Pointer;
   begin
      Say (XtR5.Name (W) & " has no tag: " & Boolean'Image (Client_Data = XtR5.XtNULL));
      Quit (W, Client_Data, Call_Data);
   end Quit_Cb;

end Tags_Callbacks;
