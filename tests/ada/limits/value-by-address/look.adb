with Ada.Text_IO;
with limit;
with Screen;
with System.Storage_Elements;
with XtR5;

procedure Look is
   use System.Storage_Elements;

   Shell   : XtR5.Widget;
   Widgets : XtR5.WidgetList_Ptr;
   Data    : aliased System.Address := System.Null_Address;
   Args    : XtR5.ArgList (1 .. 1);

   --  What lies below the variables of the running subprogram belongs to those that have ended.
   Used_Up : constant Storage_Offset := 100_000;
begin
   Screen.Open (Shell);
   limit.Widgets.FetchWidget (Shell, "w", Widgets);
   XtR5.SetArg (Args (1), "userData", Data'Address);
   XtR5.GetValues (Widgets (Widgets'First), Args, 1);
   if To_Integer (Data) in To_Integer (Data'Address - Used_Up) .. To_Integer (Data'Address) then
      Ada.Text_IO.Put_Line ("the address of a variable that is gone");
   else
      Ada.Text_IO.Put_Line ("value" & Integer_Address'Image (To_Integer (Data)));
   end if;
end Look;
