with Xm;
with Xmdef;
with unchecked_deallocation;
package body m_uil is
  function "="( left, right : in xtr5.widget ) return boolean
    renames xtr5."=";
  create_callback_struct : constant xm1_2_2.anycallbackstruct := (
    reason => xm1_2_2.CR_CREATE,
    event  => null );
  procedure freewidgetlist is new
    unchecked_deallocation( xtr5.widgetlist,
                            xtr5.widgetlist_ptr );
  current_top_level : xtr5.widget := xtr5.xtnull;
  auto_child : xtr5.widget := xtr5.xtnull;
  function kivu_create_w( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_w( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "w" then
      widgets := kivu_create_w( parent );
      kivu_post_w( parent, widgets, widgets'first );
    end if;
    widgets_return := widgets;
  end FetchWidget;
  function Shell return XtR5.Widget is
  begin
    return Shells( Shells'First );
  end Shell;
  function Child_List return XtR5.WidgetList_Ptr is
  begin
    return Child_Lists( Child_Lists'First );
  end Child_List;
  function Child_Name return String is
  begin
    return Child_Names( Child_Names'First ).all;
  end Child_Name;
  function Shell_Name return String is
  begin
    return Shell_Names( Shell_Names'First ).all;
  end Shell_Name;
  function kivu_create_w( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 22 );
  begin
    declare
    class_rec_name_1 : constant xtr5.widgetclass := xm1_2_2.extobjectclass;
    class_rec_name_2 : constant xtr5.widgetclass := xm1_2_2.objectclass;
    class_rec_name_3 : constant xtr5.widgetclass := xm1_2_2.rectobjclass;
    class_rec_name_4 : constant xtr5.widgetclass := xm1_2_2.displayclass;
    class_rec_name_5 : constant xtr5.widgetclass := xm1_2_2.dragcontextclass;
    class_rec_name_6 : constant xtr5.widgetclass := xm1_2_2.screenclass;
    class_rec_name_7 : constant xtr5.widgetclass := xm1_2_2.dragiconobjectclass;
    class_rec_name_8 : constant xtr5.widgetclass := xm1_2_2.droptransferobjectclass;
    class_rec_name_9 : constant xtr5.widgetclass := xm1_2_2.dropsitemanagerobjectclass;
    class_rec_name_10 : constant xtr5.widgetclass := xtr5.overrideshellwidgetclass;
    class_rec_name_11 : constant xtr5.widgetclass := xtr5.toplevelshellwidgetclass;
    class_rec_name_12 : constant xtr5.widgetclass := xtr5.transientshellwidgetclass;
    class_rec_name_13 : constant xtr5.widgetclass := xtr5.applicationshellwidgetclass;
    class_rec_name_14 : constant xtr5.widgetclass := xm1_2_2.PushButtonwidgetclass;
    class_rec_name_15 : constant xtr5.widgetclass := xm1_2_2.LabelGADGETclass;
    class_rec_name_16 : constant xtr5.widgetclass := xm1_2_2.Gadgetclass;
    class_rec_name_17 : constant xtr5.widgetclass := xm1_2_2.adgetwidgetclass;
    class_rec_name_18 : constant xtr5.widgetclass := xm1_2_2.widgetclass;
    class_rec_name_19 : constant xtr5.widgetclass := xm1_2_2.widgetclass;
    class_rec_name_20 : constant xtr5.widgetclass := xm1_2_2.GadgetBoxwidgetclass;
    class_rec_name_21 : constant xtr5.widgetclass := xm1_2_2.Gadgetclass;
    class_rec_name_22 : constant xtr5.widgetclass := xm1_2_2.VendorShellwidgetclass;
    begin
    xtr5.setarg( args( 1 ), xmdef.nentryClass, class_rec_name_1 );
    xtr5.setarg( args( 2 ), xmdef.nentryClass, class_rec_name_2 );
    xtr5.setarg( args( 3 ), xmdef.nentryClass, class_rec_name_3 );
    xtr5.setarg( args( 4 ), xmdef.nentryClass, class_rec_name_4 );
    xtr5.setarg( args( 5 ), xmdef.nentryClass, class_rec_name_5 );
    xtr5.setarg( args( 6 ), xmdef.nentryClass, class_rec_name_6 );
    xtr5.setarg( args( 7 ), xmdef.nentryClass, class_rec_name_7 );
    xtr5.setarg( args( 8 ), xmdef.nentryClass, class_rec_name_8 );
    xtr5.setarg( args( 9 ), xmdef.nentryClass, class_rec_name_9 );
    xtr5.setarg( args( 10 ), xmdef.nentryClass, class_rec_name_10 );
    xtr5.setarg( args( 11 ), xmdef.nentryClass, class_rec_name_11 );
    xtr5.setarg( args( 12 ), xmdef.nentryClass, class_rec_name_12 );
    xtr5.setarg( args( 13 ), xmdef.nentryClass, class_rec_name_13 );
    xtr5.setarg( args( 14 ), xmdef.nentryClass, class_rec_name_14 );
    xtr5.setarg( args( 15 ), xmdef.nentryClass, class_rec_name_15 );
    xtr5.setarg( args( 16 ), xmdef.nentryClass, class_rec_name_16 );
    xtr5.setarg( args( 17 ), xmdef.nentryClass, class_rec_name_17 );
    xtr5.setarg( args( 18 ), xmdef.nentryClass, class_rec_name_18 );
    xtr5.setarg( args( 19 ), xmdef.nentryClass, class_rec_name_19 );
    xtr5.setarg( args( 20 ), xmdef.nentryClass, class_rec_name_20 );
    xtr5.setarg( args( 21 ), xmdef.nentryClass, class_rec_name_21 );
    xtr5.setarg( args( 22 ), xmdef.nentryClass, class_rec_name_22 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "w",
              args,
              22 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_w;
  procedure kivu_post_w( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 22 );
  begin
    null;
  end kivu_post_w;
end m_uil;
