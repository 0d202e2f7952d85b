with Xm;
with Xmdef;
with unchecked_deallocation;
with reasons_client_data;
use  reasons_client_data;
package body reasons_uil is
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
  function kivu_create_tree( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_left( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_right( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_tree( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_left( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_right( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "tree" then
      widgets := kivu_create_tree( parent );
      kivu_post_tree( parent, widgets, widgets'first );
    elsif name = "left" then
      widgets := kivu_create_left( parent );
      kivu_post_left( parent, widgets, widgets'first );
    elsif name = "right" then
      widgets := kivu_create_right( parent );
      kivu_post_right( parent, widgets, widgets'first );
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
  function kivu_create_tree( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    integer_1 : constant integer := 3;
    begin
    xtr5.setarg( args( 1 ), xmdef.nwidth, integer_1 );
    self := Xm1_2_2.CreateDrawingArea(
              parent,
              "tree",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    xtr5.addcallback( self, Xmdef.NexposeCallback, reasons_cb_proc'address, 2 );
    xtr5.addcallback( self, Xmdef.NexposeCallback, reasons_cb_proc'address, 4 );
    xtr5.addcallback( self, Xmdef.NexposeCallback, reasons_cb_proc'address, 5 );
    xtr5.addcallback( self, arg_6, reasons_cb_proc'address, 6 );
    xtr5.addcallback( self, arg_7, reasons_cb_proc'address, 7 );
    xtr5.addcallback( self, arg_8, reasons_cb_proc'address, 8 );
    reasons_cb_proc( self, 10, create_callback_struct'address );
    reasons_cb_proc( self, 11, create_callback_struct'address );
    xtr5.addcallback( self, arg_12, reasons_cb_proc'address, 12 );
    child_lists( 1 ) := kivu_create_left( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_right( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
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
  end kivu_create_tree;
  function kivu_create_left( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "left",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_left;
  function kivu_create_right( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "right",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NhelpCallback, reasons_cb_proc'address, 14 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_right;
  procedure kivu_post_tree( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    arg_1 : constant xmdef.argname :=
        xmdef.argname( string'( "nodeDepth" ) & ASCII.NUL );
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*right";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), arg_1, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.addcallback( widgets( index ), arg_1, reasons_cb_proc'address, 1 );
    widget_3 := xtr5.nametowidget( current_top_level,
                             widget_string_3 );
    xtr5.addcallback( widgets( index ), Xmdef.NexposeCallback, reasons_cb_proc'address, 3 );
    widget_9 := xtr5.nametowidget( current_top_level,
                             widget_string_9 );
    reasons_cb_proc( widgets( index ), 9, create_callback_struct'address );
    kivu_post_left( widgets( index ), widgets, index + 1 );
    kivu_post_right( widgets( index ), widgets, index + 2 );
    null;
  end kivu_post_tree;
  procedure kivu_post_left( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    widget_13 := xtr5.nametowidget( current_top_level,
                             widget_string_13 );
    xtr5.addcallback( widgets( index ), Xmdef.NhelpCallback, reasons_cb_proc'address, 13 );
    null;
  end kivu_post_left;
  procedure kivu_post_right( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_right;
end reasons_uil;
