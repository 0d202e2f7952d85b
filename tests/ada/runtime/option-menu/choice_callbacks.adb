with Probe; use Probe;

package body Choice_Callbacks is

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Listen;

   procedure Chosen_Cb (W : XtR5.Widget; Client_Data : Integer; Call_Data : XtR5.Pointer) is
   begin
      Say (XtR5.Name (W) & Client_Data'Image);
   end Chosen_Cb;

   --  What the option menu remembers and what it shows.
   procedure Show_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer)
   is
      Menu : constant XtR5.Widget := XtR5.NameToWidget (XtR5.Parent (W), "paper");
   begin
      Say (XtR5.Name (Handle (Menu, "menuHistory")) & " shown as "
           & Compound (XtR5.NameToWidget (Menu, "OptionLabel"), "labelString") & ": "
           & Compound (XtR5.NameToWidget (Menu, "OptionButton"), "labelString"));
   end Show_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Quit;

end Choice_Callbacks;
