with Probe; use Probe;
with Rows;

package body Rows_Callbacks is

   use type XtR5.WidgetList_Ptr;

   First : XtR5.Widget := XtR5.XtNULL;

   procedure Ready_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Listen;

   --  All widgets come back, the one asked for first.  The old row's button goes, so that the
   --  new one is the only one of its name.
   procedure Add_Cb (W : XtR5.Widget; Client_Data : String; Call_Data : XtR5.Pointer) is
      Parent : constant XtR5.Widget := XtR5.Parent (W);
      Old    : XtR5.Widget;
      Found  : XtR5.WidgetList_Ptr;
   begin
      Rows.Widgets.FetchWidget (Parent, Plain (Client_Data), Found);
      if Found = null then
         Say ("no " & Plain (Client_Data));
         return;
      end if;
      for Item of Found.all loop
         Say (XtR5.Name (Item) & " under " & XtR5.Name (XtR5.Parent (Item)));
      end loop;
      Old := XtR5.NameToWidget (Parent, "row");
      XtR5.DestroyWidget (Old);
      XtR5.ManageChild (Found (1));
      First := Found (2);
   end Add_Cb;

   procedure Hello_Cb (W : XtR5.Widget; Client_Data : Integer; Call_Data : XtR5.Pointer) is
      use type XtR5.Widget;
   begin
      Say (XtR5.Name (W) & Client_Data'Image & (if W = First then " anew" else ""));
   end Hello_Cb;

   procedure Quit_Cb
     (W : XtR5.Widget; Client_Data : XtR5.Pointer; Call_Data : XtR5.Pointer) renames Quit;

end Rows_Callbacks;
