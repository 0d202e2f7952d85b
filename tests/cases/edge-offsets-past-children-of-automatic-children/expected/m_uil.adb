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
  function kivu_create_box( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_after( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_shared( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_leaf( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_last( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_box( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_after( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_shared( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_leaf( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_last( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "box" then
      widgets := kivu_create_box( parent );
      kivu_post_box( parent, widgets, widgets'first );
    elsif name = "after" then
      widgets := kivu_create_after( parent );
      kivu_post_after( parent, widgets, widgets'first );
    elsif name = "shared" then
      widgets := kivu_create_shared( parent );
      kivu_post_shared( parent, widgets, widgets'first );
    elsif name = "last" then
      widgets := kivu_create_last( parent );
      kivu_post_last( parent, widgets, widgets'first );
    elsif name = "g" then
      widgets := kivu_create_g( parent );
      kivu_post_g( parent, widgets, widgets'first );
    elsif name = "shared" then
      widgets := kivu_create_shared( parent );
      kivu_post_shared( parent, widgets, widgets'first );
    elsif name = "leaf" then
      widgets := kivu_create_leaf( parent );
      kivu_post_leaf( parent, widgets, widgets'first );
    elsif name = "leaf" then
      widgets := kivu_create_leaf( parent );
      kivu_post_leaf( parent, widgets, widgets'first );
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
  function kivu_create_box( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 5 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateSelectionBox(
              parent,
              "box",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      Xm1_2_2.SelectionBoxGetChild( self, Xm1_2_2.DIALOG_LIST_LABEL );
    child_lists( 2 ) := kivu_create_after( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 3 )( 1 ) :=
      Xm1_2_2.SelectionBoxGetChild( self, Xm1_2_2.DIALOG_TEXT );
    child_lists( 4 ) := kivu_create_shared( self );
    child_lists( 5 ) := kivu_create_last( self );
    xtr5.managechild( child_lists( 5 )( 1 ) );
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
  end kivu_create_box;
  function kivu_create_after( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "after",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_after;
  function kivu_create_shared( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateFrame(
              parent,
              "shared",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_leaf( self );
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
  end kivu_create_shared;
  function kivu_create_leaf( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "leaf",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_leaf;
  function kivu_create_last( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "last",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_last;
  procedure kivu_post_box( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    auto_child :=
      Xm1_2_2.SelectionBoxGetChild( self, Xm1_2_2.DIALOG_LIST_LABEL );
    kivu_post_after( widgets( index ), widgets, index + 6 );
    auto_child :=
      Xm1_2_2.SelectionBoxGetChild( self, Xm1_2_2.DIALOG_TEXT );
    kivu_post_shared( widgets( index ), widgets, index + 8 );
    kivu_post_last( widgets( index ), widgets, index + 10 );
    null;
  end kivu_post_box;
  procedure kivu_post_after( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_after;
  procedure kivu_post_shared( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_leaf( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_shared;
  procedure kivu_post_leaf( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_leaf;
  procedure kivu_post_last( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*g";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nuserData, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_last;
end m_uil;
