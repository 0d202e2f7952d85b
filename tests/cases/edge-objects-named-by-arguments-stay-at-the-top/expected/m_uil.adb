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
  function kivu_create_late( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_two( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_three( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_one( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_four( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_late( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_two( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_three( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_one( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_four( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "late" then
      widgets := kivu_create_late( parent );
      kivu_post_late( parent, widgets, widgets'first );
    elsif name = "two" then
      widgets := kivu_create_two( parent );
      kivu_post_two( parent, widgets, widgets'first );
    elsif name = "three" then
      widgets := kivu_create_three( parent );
      kivu_post_three( parent, widgets, widgets'first );
    elsif name = "four" then
      widgets := kivu_create_four( parent );
      kivu_post_four( parent, widgets, widgets'first );
    elsif name = "one" then
      widgets := kivu_create_one( parent );
      kivu_post_one( parent, widgets, widgets'first );
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
  function kivu_create_late( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "late",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_late;
  function kivu_create_two( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "two",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_two;
  function kivu_create_three( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "three",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_one( self );
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
  end kivu_create_three;
  function kivu_create_one( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "one",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_one;
  function kivu_create_four( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "four",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_four;
  procedure kivu_post_late( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_late;
  procedure kivu_post_two( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_two;
  procedure kivu_post_three( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*one";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nuserData, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    kivu_post_one( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_three;
  procedure kivu_post_one( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*two";
    widget_2 : xtr5.widget := xtr5.xtnull;
    widget_string_2 : constant string := "*four";
    widget_3 : xtr5.widget := xtr5.xtnull;
    widget_string_3 : constant string := "*late";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nleftWidget, widget_1 );
    widget_2 := xtr5.nametowidget( current_top_level,
                             widget_string_2 );
    xtr5.setarg( args( 2 ), xmdef.ntopWidget, widget_2 );
    widget_3 := xtr5.nametowidget( current_top_level,
                             widget_string_3 );
    xtr5.setarg( args( 3 ), xmdef.nrightWidget, widget_3 );
    XtR5.SetValues( widgets( index ), args, 3 );
    end;
    null;
  end kivu_post_one;
  procedure kivu_post_four( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_four;
end m_uil;
