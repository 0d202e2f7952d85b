with Xm;
with Xmdef;
with unchecked_deallocation;
with myapp_client_data;
use  myapp_client_data;
package body myapp_UIL2 is
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
  function kivu_create_mainwindow( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_anon_make_dial_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_mainwindow( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_make_dial_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "MainWindow" then
      widgets := kivu_create_mainwindow( parent );
      kivu_post_mainwindow( parent, widgets, widgets'first );
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
  function Create_mainwindow( parent : in XtR5.Widget )
    return mainwindow_Rec is
    widgets : xtr5.widgetlist_ptr;
  begin
    FetchWidget( parent, "MainWindow", widgets );
    return mainwindow;
  end Create_mainwindow;
  function kivu_create_mainwindow( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateMainWindow(
              parent,
              "MainWindow",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NfocusCallback, myapp_cb_proc'address, 1 );
    child_lists( 1 ) := kivu_create_anon_make_dial_1( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_Separator1" );
    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    integer_1 : constant integer := 2;
    begin
    xtr5.setarg( args( 1 ), xmdef.nwidth, integer_1 );
    XtR5.SetValues( child_lists( 2 )( 1 ), args, 1 );
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
      mainwindow.mainwindow := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_mainwindow;
  function kivu_create_anon_make_dial_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := make_dial(
              parent,
              "anon_Make_Dial_1",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      mainwindow.anon_make_dial_1 := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_anon_make_dial_1;
  procedure kivu_post_mainwindow( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_anon_make_dial_1( widgets( index ), widgets, index + 1 );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_Separator1" );
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
  end kivu_post_mainwindow;
  procedure kivu_post_anon_make_dial_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_anon_make_dial_1;
end myapp_UIL2;
