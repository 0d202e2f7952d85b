with Xm;
with Xmdef;
with unchecked_deallocation;
with my_module_client_data;
use  my_module_client_data;
package body my_module_uil is
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
  function kivu_create_top_form( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_ok_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_my_widget_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_a_b( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_a__b( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_x_y( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create__ab( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_ab( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_upper( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_made( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_top_form( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_ok_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_my_widget_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_a_b( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_a__b( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_x_y( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post__ab( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_ab( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_upper( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_made( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "Top$Form" then
      widgets := kivu_create_top_form( parent );
      kivu_post_top_form( parent, widgets, widgets'first );
    elsif name = "OK_Button" then
      widgets := kivu_create_ok_button( parent );
      kivu_post_ok_button( parent, widgets, widgets'first );
    elsif name = "my$widget$1" then
      widgets := kivu_create_my_widget_1( parent );
      kivu_post_my_widget_1( parent, widgets, widgets'first );
    elsif name = "a__b" then
      widgets := kivu_create_a_b( parent );
      kivu_post_a_b( parent, widgets, widgets'first );
    elsif name = "a___b" then
      widgets := kivu_create_a__b( parent );
      kivu_post_a__b( parent, widgets, widgets'first );
    elsif name = "_x__y_" then
      widgets := kivu_create_x_y( parent );
      kivu_post_x_y( parent, widgets, widgets'first );
    elsif name = "__ab" then
      widgets := kivu_create__ab( parent );
      kivu_post__ab( parent, widgets, widgets'first );
    elsif name = "_a_b" then
      widgets := kivu_create_ab( parent );
      kivu_post_ab( parent, widgets, widgets'first );
    elsif name = "_" then
      widgets := kivu_create_( parent );
      kivu_post_( parent, widgets, widgets'first );
    elsif name = "UPPER" then
      widgets := kivu_create_upper( parent );
      kivu_post_upper( parent, widgets, widgets'first );
    elsif name = "made" then
      widgets := kivu_create_made( parent );
      kivu_post_made( parent, widgets, widgets'first );
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
  function Create_top_form( parent : in XtR5.Widget )
    return top_form_rec is
    widgets : xtr5.widgetlist_ptr;
  begin
    FetchWidget( parent, "Top$Form", widgets );
    return top_form;
  end Create_top_form;
  function kivu_create_top_form( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 10 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "Top$Form",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NmapCallback, my_module_cb_proc'address, 1 );
    child_lists( 1 ) := kivu_create_ok_button( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_my_widget_1( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_a_b( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 4 ) := kivu_create_a__b( self );
    xtr5.managechild( child_lists( 4 )( 1 ) );
    child_lists( 5 ) := kivu_create_x_y( self );
    xtr5.managechild( child_lists( 5 )( 1 ) );
    child_lists( 6 ) := kivu_create__ab( self );
    xtr5.managechild( child_lists( 6 )( 1 ) );
    child_lists( 7 ) := kivu_create_ab( self );
    xtr5.managechild( child_lists( 7 )( 1 ) );
    child_lists( 8 ) := kivu_create_( self );
    xtr5.managechild( child_lists( 8 )( 1 ) );
    child_lists( 9 ) := kivu_create_upper( self );
    xtr5.managechild( child_lists( 9 )( 1 ) );
    child_lists( 10 ) := kivu_create_made( self );
    xtr5.managechild( child_lists( 10 )( 1 ) );
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
      top_form.top_form := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_top_form;
  function kivu_create_ok_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "OK_Button",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top_form.ok_button := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_ok_button;
  function kivu_create_my_widget_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "my$widget$1",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top_form.my_widget_1 := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_my_widget_1;
  function kivu_create_a_b( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "a__b",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top_form.a_b := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_a_b;
  function kivu_create_a__b( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "a___b",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top_form.a__b := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_a__b;
  function kivu_create_x_y( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "_x__y_",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top_form.x_y := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_x_y;
  function kivu_create__ab( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "__ab",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top_form._ab := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create__ab;
  function kivu_create_ab( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "_a_b",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top_form.ab := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_ab;
  function kivu_create_( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "_",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top_form. := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_;
  function kivu_create_upper( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "UPPER",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top_form.upper := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_upper;
  function kivu_create_made( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := make_it(
              parent,
              "made",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top_form.made := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_made;
  procedure kivu_post_top_form( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_ok_button( widgets( index ), widgets, index + 1 );
    kivu_post_my_widget_1( widgets( index ), widgets, index + 2 );
    kivu_post_a_b( widgets( index ), widgets, index + 3 );
    kivu_post_a__b( widgets( index ), widgets, index + 4 );
    kivu_post_x_y( widgets( index ), widgets, index + 5 );
    kivu_post__ab( widgets( index ), widgets, index + 6 );
    kivu_post_ab( widgets( index ), widgets, index + 7 );
    kivu_post_( widgets( index ), widgets, index + 8 );
    kivu_post_upper( widgets( index ), widgets, index + 9 );
    kivu_post_made( widgets( index ), widgets, index + 10 );
    null;
  end kivu_post_top_form;
  procedure kivu_post_ok_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_ok_button;
  procedure kivu_post_my_widget_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_my_widget_1;
  procedure kivu_post_a_b( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_a_b;
  procedure kivu_post_a__b( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_a__b;
  procedure kivu_post_x_y( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_x_y;
  procedure kivu_post__ab( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post__ab;
  procedure kivu_post_ab( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_ab;
  procedure kivu_post_( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_;
  procedure kivu_post_upper( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_upper;
  procedure kivu_post_made( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_made;
end my_module_uil;
