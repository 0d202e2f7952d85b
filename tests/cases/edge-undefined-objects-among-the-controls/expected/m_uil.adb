with Xm;
with Xmdef;
with unchecked_deallocation;
with m_client_data;
use  m_client_data;
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
  function kivu_create_f( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_a( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_c( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_pd( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_b( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_f( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_a( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_c( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_pd( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_b( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "f" then
      widgets := kivu_create_f( parent );
      kivu_post_f( parent, widgets, widgets'first );
    elsif name = "a" then
      widgets := kivu_create_a( parent );
      kivu_post_a( parent, widgets, widgets'first );
    elsif name = "c" then
      widgets := kivu_create_c( parent );
      kivu_post_c( parent, widgets, widgets'first );
    elsif name = "b" then
      widgets := kivu_create_b( parent );
      kivu_post_b( parent, widgets, widgets'first );
    elsif name = "pd" then
      widgets := kivu_create_pd( parent );
      kivu_post_pd( parent, widgets, widgets'first );
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
  function Create_f( parent : in XtR5.Widget )
    return f_rec is
    widgets : xtr5.widgetlist_ptr;
  begin
    FetchWidget( parent, "f", widgets );
    return f;
  end Create_f;
  function kivu_create_f( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 5 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "f",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NmapCallback, m_cb_proc'address, 1 );
    child_lists( 1 ) := kivu_create_a( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 3 ) := kivu_create_c( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 5 ) := kivu_create_b( self );
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
      f.f := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_f;
  function kivu_create_a( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "a",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      f.a := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_a;
  function kivu_create_pd( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "pd",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      f.pd := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_pd;
  function kivu_create_c( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    child_lists( 2 ) := kivu_create_pd( parent );
    xtr5.setarg( args( 1 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateCascadeButton(
              parent,
              "c",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NactivateCallback, m_cb_proc'address, 2 );
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
      f.c := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_c;
  function kivu_create_b( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "b",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      f.b := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_b;
  procedure kivu_post_f( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_a( widgets( index ), widgets, index + 1 );
    kivu_post_c( widgets( index ), widgets, index + 3 );
    kivu_post_b( widgets( index ), widgets, index + 7 );
    null;
  end kivu_post_f;
  procedure kivu_post_a( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_a;
  procedure kivu_post_pd( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_pd;
  procedure kivu_post_c( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    kivu_post_pd( widgets( index ), widgets, index + 2 );
    null;
  end kivu_post_c;
  procedure kivu_post_b( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_b;
end m_uil;
