with Xm;
with Xmdef;
with unchecked_deallocation;
with tagged_client_data;
use  tagged_client_data;
package body tagged is
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
  function kivu_create_anon_xmframe_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_deep( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_xmframe_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_deep( parent : in xtr5.widget;
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
    elsif name = "deep" then
      widgets := kivu_create_deep( parent );
      kivu_post_deep( parent, widgets, widgets'first );
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
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateDrawingArea(
              parent,
              "top",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, arg_1, tagged_cb_proc'address, 1 );
    xtr5.addcallback( self, arg_2, tagged_cb_proc'address, 2 );
    xtr5.addcallback( self, arg_3, tagged_cb_proc'address, 3 );
    xtr5.addcallback( self, arg_5, tagged_cb_proc'address, 5 );
    xtr5.addcallback( self, arg_6, tagged_cb_proc'address, 6 );
    xtr5.addcallback( self, arg_7, tagged_cb_proc'address, 7 );
    xtr5.addcallback( self, Xmdef.NinputCallback, tagged_cb_proc'address, 8 );
    child_lists( 1 ) := kivu_create_anon_xmframe_1( self );
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
  end kivu_create_top;
  function kivu_create_anon_xmframe_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateFrame(
              parent,
              "anon_XmFrame_1",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, arg_10, tagged_cb_proc'address, 10 );
    xtr5.addcallback( self, arg_11, tagged_cb_proc'address, 11 );
    xtr5.addcallback( self, arg_12, tagged_cb_proc'address, 12 );
    child_lists( 1 ) := kivu_create_deep( self );
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
  end kivu_create_anon_xmframe_1;
  function kivu_create_deep( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "deep",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_deep;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    widget_4 := xtr5.nametowidget( current_top_level,
                             widget_string_4 );
    xtr5.addcallback( widgets( index ), arg_4, tagged_cb_proc'address, 4 );
    widget_9 := xtr5.nametowidget( current_top_level,
                             widget_string_9 );
    xtr5.addcallback( widgets( index ), Xmdef.NinputCallback, tagged_cb_proc'address, 9 );
    kivu_post_anon_xmframe_1( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_top;
  procedure kivu_post_anon_xmframe_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_deep( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_anon_xmframe_1;
  procedure kivu_post_deep( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    widget_13 := xtr5.nametowidget( current_top_level,
                             widget_string_13 );
    xtr5.addcallback( widgets( index ), arg_13, tagged_cb_proc'address, 13 );
    null;
  end kivu_post_deep;
end tagged;
