with Xm;
with Xmdef;
with unchecked_deallocation;
with diamonds_client_data;
use  diamonds_client_data;
package body diamonds_uil is
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
  function kivu_create_branch( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_twig( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_leaf( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_anon_xmframe_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_last( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_branch( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_twig( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_leaf( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_xmframe_1( parent : in xtr5.widget;
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
    if name = "top" then
      widgets := kivu_create_top( parent );
      kivu_post_top( parent, widgets, widgets'first );
    elsif name = "branch" then
      widgets := kivu_create_branch( parent );
      kivu_post_branch( parent, widgets, widgets'first );
    elsif name = "twig" then
      widgets := kivu_create_twig( parent );
      kivu_post_twig( parent, widgets, widgets'first );
    elsif name = "leaf" then
      widgets := kivu_create_leaf( parent );
      kivu_post_leaf( parent, widgets, widgets'first );
    elsif name = "branch" then
      widgets := kivu_create_branch( parent );
      kivu_post_branch( parent, widgets, widgets'first );
    elsif name = "last" then
      widgets := kivu_create_last( parent );
      kivu_post_last( parent, widgets, widgets'first );
    elsif name = "twig" then
      widgets := kivu_create_twig( parent );
      kivu_post_twig( parent, widgets, widgets'first );
    elsif name = "leaf" then
      widgets := kivu_create_leaf( parent );
      kivu_post_leaf( parent, widgets, widgets'first );
    elsif name = "leaf" then
      widgets := kivu_create_leaf( parent );
      kivu_post_leaf( parent, widgets, widgets'first );
    elsif name = "leaf" then
      widgets := kivu_create_leaf( parent );
      kivu_post_leaf( parent, widgets, widgets'first );
    elsif name = "odd" then
      widgets := kivu_create_odd( parent );
      kivu_post_odd( parent, widgets, widgets'first );
    elsif name = "leaf" then
      widgets := kivu_create_leaf( parent );
      kivu_post_leaf( parent, widgets, widgets'first );
    elsif name = "leaf" then
      widgets := kivu_create_leaf( parent );
      kivu_post_leaf( parent, widgets, widgets'first );
    elsif name = "leaf" then
      widgets := kivu_create_leaf( parent );
      kivu_post_leaf( parent, widgets, widgets'first );
    elsif name = "twig" then
      widgets := kivu_create_twig( parent );
      kivu_post_twig( parent, widgets, widgets'first );
    elsif name = "leaf" then
      widgets := kivu_create_leaf( parent );
      kivu_post_leaf( parent, widgets, widgets'first );
    elsif name = "leaf" then
      widgets := kivu_create_leaf( parent );
      kivu_post_leaf( parent, widgets, widgets'first );
    elsif name = "leaf" then
      widgets := kivu_create_leaf( parent );
      kivu_post_leaf( parent, widgets, widgets'first );
    elsif name = "odd" then
      widgets := kivu_create_odd( parent );
      kivu_post_odd( parent, widgets, widgets'first );
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
    child_lists : array( 1 .. 7 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateMessageBox(
              parent,
              "top",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_branch( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_SYMBOL_LABEL );
    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then
    xtr5.addcallback( child_lists( 2 )( 1 ), Xmdef.NhelpCallback, diamonds_cb_proc'address, 1 );
      null;
    end if;
    child_lists( 3 ) := kivu_create_twig( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 4 ) := kivu_create_leaf( self );
    xtr5.managechild( child_lists( 4 )( 1 ) );
    child_lists( 5 ) := kivu_create_anon_xmframe_1( self );
    xtr5.managechild( child_lists( 5 )( 1 ) );
    child_lists( 6 ) := kivu_create_branch( self );
    xtr5.managechild( child_lists( 6 )( 1 ) );
    child_lists( 7 ) := kivu_create_last( self );
    xtr5.managechild( child_lists( 7 )( 1 ) );
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
  function kivu_create_branch( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "branch",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_twig( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_leaf( self );
    child_lists( 3 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 3 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_OK" );
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
  end kivu_create_branch;
  function kivu_create_twig( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "twig",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_leaf( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_anon_xmframe_1( self );
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
  end kivu_create_twig;
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
    xtr5.addcallback( self, Xmdef.NhelpCallback, diamonds_cb_proc'address, 2 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_leaf;
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
  end kivu_create_anon_xmframe_1;
  function kivu_create_last( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "last",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NhelpCallback, diamonds_cb_proc'address, 3 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_last;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_branch( widgets( index ), widgets, index + 1 );
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_SYMBOL_LABEL );
    if auto_child /= XtR5.XtNULL then
      null;
    end if;
    kivu_post_twig( widgets( index ), widgets, index + 10 );
    kivu_post_leaf( widgets( index ), widgets, index + 14 );
    kivu_post_anon_xmframe_1( widgets( index ), widgets, index + 15 );
    kivu_post_branch( widgets( index ), widgets, index + 17 );
    kivu_post_last( widgets( index ), widgets, index + 25 );
    null;
  end kivu_post_top;
  procedure kivu_post_branch( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_twig( widgets( index ), widgets, index + 1 );
    kivu_post_leaf( widgets( index ), widgets, index + 5 );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_OK" );
    null;
  end kivu_post_branch;
  procedure kivu_post_twig( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_leaf( widgets( index ), widgets, index + 1 );
    kivu_post_anon_xmframe_1( widgets( index ), widgets, index + 2 );
    null;
  end kivu_post_twig;
  procedure kivu_post_leaf( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_leaf;
  procedure kivu_post_anon_xmframe_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_leaf( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_anon_xmframe_1;
  procedure kivu_post_last( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_last;
end diamonds_uil;
