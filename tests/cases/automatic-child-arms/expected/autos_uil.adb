with Xm;
with Xmdef;
with unchecked_deallocation;
with autos_client_data;
use  autos_client_data;
package body autos_uil is
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
  function kivu_create_top( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_named( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_anon_xmpulldownmenu_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_named( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_xmpulldownmenu_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "top" then
      widgets := kivu_create_top( parent );
      kivu_post_top( parent, widgets, widgets'first );
    elsif name = "named" then
      widgets := kivu_create_named( parent );
      kivu_post_named( parent, widgets, widgets'first );
    elsif name = "menu" then
      widgets := kivu_create_menu( parent );
      kivu_post_menu( parent, widgets, widgets'first );
    elsif name = "odd" then
      widgets := kivu_create_odd( parent );
      kivu_post_odd( parent, widgets, widgets'first );
    elsif name = "odd" then
      widgets := kivu_create_odd( parent );
      kivu_post_odd( parent, widgets, widgets'first );
    elsif name = "named" then
      widgets := kivu_create_named( parent );
      kivu_post_named( parent, widgets, widgets'first );
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
  function kivu_create_top( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateSelectionBox(
              parent,
              "top",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NokCallback, autos_cb_proc'address, 1 );
    child_lists( 1 ) := kivu_create_named( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      Xm1_2_2.SelectionBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then
    xtr5.addcallback( child_lists( 2 )( 1 ), Xmdef.NactivateCallback, autos_cb_proc'address, 2 );
    xtr5.addcallback( child_lists( 2 )( 1 ), Xmdef.NactivateCallback, autos_cb_proc'address, 3 );
      null;
    end if;
    child_lists( 3 ) := kivu_create_menu( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
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
  end kivu_create_top;
  function kivu_create_named( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "named",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NhelpCallback, autos_cb_proc'address, 4 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_named;
  function kivu_create_anon_xmpulldownmenu_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "anon_XmPulldownMenu_1",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NmapCallback, autos_cb_proc'address, 5 );
    child_lists( 1 ) := kivu_create_named( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
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
  end kivu_create_anon_xmpulldownmenu_1;
  function kivu_create_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_OK" );
    if child_lists( 1 )( 1 ) /= XtR5.XtNULL then
    xtr5.addcallback( child_lists( 1 )( 1 ), Xmdef.NactivateCallback, autos_cb_proc'address, 6 );
    xtr5.addcallback( child_lists( 1 )( 1 ), Xmdef.NactivateCallback, autos_cb_proc'address, 7 );
      null;
    end if;
    child_lists( 2 ) := kivu_create_anon_xmpulldownmenu_1( parent );
    xtr5.setarg( args( 1 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateOptionMenu(
              parent,
              "menu",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NentryCallback, autos_cb_proc'address, 8 );
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
  end kivu_create_menu;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_named( widgets( index ), widgets, index + 1 );
    auto_child :=
      Xm1_2_2.SelectionBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    if auto_child /= XtR5.XtNULL then
      null;
    end if;
    kivu_post_menu( widgets( index ), widgets, index + 4 );
    null;
  end kivu_post_top;
  procedure kivu_post_named( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_named;
  procedure kivu_post_anon_xmpulldownmenu_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_named( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_anon_xmpulldownmenu_1;
  procedure kivu_post_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_OK" );
    if auto_child /= XtR5.XtNULL then
      null;
    end if;
    kivu_post_anon_xmpulldownmenu_1( widgets( index ), widgets, index + 2 );
    null;
  end kivu_post_menu;
end autos_uil;
