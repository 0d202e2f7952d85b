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
  function kivu_create_l( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_l( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "l" then
      widgets := kivu_create_l( parent );
      kivu_post_l( parent, widgets, widgets'first );
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
  function kivu_create_l( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 15 );
  begin
    declare
    class_rec_name_1 : constant xtr5.widgetclass := xm1_2_2.widgetclass;
    class_rec_name_2 : constant xtr5.widgetclass := xm1_2_2.widgetclass;
    class_rec_name_3 : constant xtr5.widgetclass := xm1_2_2.Gadgetclass;
    class_rec_name_4 : constant xtr5.widgetclass := xm1_2_2.Gadgetclass;
    class_rec_name_5 : constant xtr5.widgetclass := xm1_2_2.adgetwidgetclass;
    class_rec_name_6 : constant xtr5.widgetclass := xm1_2_2.displayclass;
    class_rec_name_7 : constant xtr5.widgetclass := xm1_2_2.formwidgetclass;
    class_rec_name_8 : constant xtr5.widgetclass := xm1_2_2.widgetclass;
    class_rec_name_9 : constant xtr5.widgetclass := xm1_2_2.Xwidgetclass;
    class_rec_name_10 : constant xtr5.widgetclass := xm1_2_2.XmFormwidgetclass;
    class_rec_name_11 : constant xtr5.widgetclass := xm1_2_2.OBJECTSwidgetclass;
    class_rec_name_12 : constant xtr5.widgetclass := xm1_2_2.my classwidgetclass;
    class_rec_name_13 : constant xtr5.widgetclass := xm1_2_2.PushButtonGADGETclass;
    class_rec_name_14 : constant xtr5.widgetclass := xm1_2_2.rectobjclass;
    class_rec_name_15 : constant xtr5.widgetclass := xm1_2_2.Gadgetswidgetclass;
    begin
    xtr5.setarg( args( 1 ), xmdef.nuserData, class_rec_name_1 );
    xtr5.setarg( args( 2 ), xmdef.nentryClass, class_rec_name_2 );
    xtr5.setarg( args( 3 ), xmdef.nuserData, class_rec_name_3 );
    xtr5.setarg( args( 4 ), xmdef.nentryClass, class_rec_name_4 );
    xtr5.setarg( args( 5 ), xmdef.nuserData, class_rec_name_5 );
    xtr5.setarg( args( 6 ), xmdef.nentryClass, class_rec_name_6 );
    xtr5.setarg( args( 7 ), xmdef.nuserData, class_rec_name_7 );
    xtr5.setarg( args( 8 ), xmdef.nentryClass, class_rec_name_8 );
    xtr5.setarg( args( 9 ), xmdef.nuserData, class_rec_name_9 );
    xtr5.setarg( args( 10 ), xmdef.nentryClass, class_rec_name_10 );
    xtr5.setarg( args( 11 ), xmdef.nuserData, class_rec_name_11 );
    xtr5.setarg( args( 12 ), xmdef.nentryClass, class_rec_name_12 );
    xtr5.setarg( args( 13 ), xmdef.nuserData, class_rec_name_13 );
    xtr5.setarg( args( 14 ), xmdef.nentryClass, class_rec_name_14 );
    xtr5.setarg( args( 15 ), xmdef.nuserData, class_rec_name_15 );
    self := Xm1_2_2.CreateForm(
              parent,
              "l",
              args,
              15 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_OK" );
    if child_lists( 1 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    class_rec_name_1 : constant xtr5.widgetclass := xm1_2_2.gadgetclass;
    begin
    xtr5.setarg( args( 1 ), xmdef.nentryClass, class_rec_name_1 );
    XtR5.SetValues( child_lists( 1 )( 1 ), args, 1 );
      null;
    end;
      null;
    end if;
    for child_index in child_lists'range loop
      child_count := child_count +
                     child_lists( child_index )'length;
    end loop;
    declare
      children : xtr5.widgetlist( 1 .. child_count );
    begin
      child_count := children'first;
      children( child_count ) := self;
      for child_index in child_lists'range loop
        children( child_count + 1 ..
                  child_count +
                  child_lists( child_index )'length ) :=
          child_lists( child_index ).all;
        child_count := child_count +
                       child_lists( child_index )'length;
        freewidgetlist( child_lists( child_index ) );
      end loop;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_l;
  procedure kivu_post_l( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 15 );
  begin
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_OK" );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    null;
  end kivu_post_l;
end m_uil;
