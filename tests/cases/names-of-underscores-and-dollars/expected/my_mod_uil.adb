with Xm;
with Xmdef;
with unchecked_deallocation;
with my_mod_client_data;
use  my_mod_client_data;
package body my_mod_uil is
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
  function kivu_create_a__b( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_x___y( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create__( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_1x( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_b_c( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_d__e( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_f( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_g( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create__h( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_ij( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_k__l( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_a__b( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_x___y( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post__( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_1x( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_b_c( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_d__e( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_f( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_g( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post__h( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_ij( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_k__l( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "Top$" then
      widgets := kivu_create_top( parent );
      kivu_post_top( parent, widgets, widgets'first );
    elsif name = "a$_$b" then
      widgets := kivu_create_a__b( parent );
      kivu_post_a__b( parent, widgets, widgets'first );
    elsif name = "x_____y" then
      widgets := kivu_create_x___y( parent );
      kivu_post_x___y( parent, widgets, widgets'first );
    elsif name = "_" then
      widgets := kivu_create_( parent );
      kivu_post_( parent, widgets, widgets'first );
    elsif name = "____" then
      widgets := kivu_create__( parent );
      kivu_post__( parent, widgets, widgets'first );
    elsif name = "$1x" then
      widgets := kivu_create_1x( parent );
      kivu_post_1x( parent, widgets, widgets'first );
    elsif name = "b__c__" then
      widgets := kivu_create_b_c( parent );
      kivu_post_b_c( parent, widgets, widgets'first );
    elsif name = "d___$e" then
      widgets := kivu_create_d__e( parent );
      kivu_post_d__e( parent, widgets, widgets'first );
    elsif name = "_f" then
      widgets := kivu_create_f( parent );
      kivu_post_f( parent, widgets, widgets'first );
    elsif name = "g_" then
      widgets := kivu_create_g( parent );
      kivu_post_g( parent, widgets, widgets'first );
    elsif name = "__h" then
      widgets := kivu_create__h( parent );
      kivu_post__h( parent, widgets, widgets'first );
    elsif name = "_i_j" then
      widgets := kivu_create_ij( parent );
      kivu_post_ij( parent, widgets, widgets'first );
    elsif name = "k$$$$l" then
      widgets := kivu_create_k__l( parent );
      kivu_post_k__l( parent, widgets, widgets'first );
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
  function Create_top( parent : in XtR5.Widget )
    return top_rec is
    widgets : xtr5.widgetlist_ptr;
  begin
    FetchWidget( parent, "Top$", widgets );
    return top;
  end Create_top;
  function kivu_create_top( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 12 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "Top$",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NmapCallback, my_mod_cb_proc'address, 1 );
    xtr5.addcallback( self, Xmdef.NmapCallback, my_mod_cb_proc'address, 2 );
    child_lists( 1 ) := kivu_create_a__b( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_x___y( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 4 ) := kivu_create__( self );
    xtr5.managechild( child_lists( 4 )( 1 ) );
    child_lists( 5 ) := kivu_create_1x( self );
    xtr5.managechild( child_lists( 5 )( 1 ) );
    child_lists( 6 ) := kivu_create_b_c( self );
    xtr5.managechild( child_lists( 6 )( 1 ) );
    child_lists( 7 ) := kivu_create_d__e( self );
    xtr5.managechild( child_lists( 7 )( 1 ) );
    child_lists( 8 ) := kivu_create_f( self );
    xtr5.managechild( child_lists( 8 )( 1 ) );
    child_lists( 9 ) := kivu_create_g( self );
    xtr5.managechild( child_lists( 9 )( 1 ) );
    child_lists( 10 ) := kivu_create__h( self );
    xtr5.managechild( child_lists( 10 )( 1 ) );
    child_lists( 11 ) := kivu_create_ij( self );
    xtr5.managechild( child_lists( 11 )( 1 ) );
    child_lists( 12 ) := kivu_create_k__l( self );
    xtr5.managechild( child_lists( 12 )( 1 ) );
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
      top.top := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_top;
  function kivu_create_a__b( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "a$_$b",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top.a__b := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_a__b;
  function kivu_create_x___y( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "x_____y",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top.x___y := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_x___y;
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
      top. := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_;
  function kivu_create__( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "____",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top._ := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create__;
  function kivu_create_1x( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "$1x",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top.1x := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_1x;
  function kivu_create_b_c( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "b__c__",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top.b_c := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_b_c;
  function kivu_create_d__e( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "d___$e",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top.d__e := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_d__e;
  function kivu_create_f( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "_f",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top.f := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_f;
  function kivu_create_g( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "g_",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top.g := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_g;
  function kivu_create__h( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "__h",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top._h := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create__h;
  function kivu_create_ij( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "_i_j",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top.ij := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_ij;
  function kivu_create_k__l( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "k$$$$l",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      top.k__l := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_k__l;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_a__b( widgets( index ), widgets, index + 1 );
    kivu_post_x___y( widgets( index ), widgets, index + 2 );
    kivu_post_( widgets( index ), widgets, index + 3 );
    kivu_post__( widgets( index ), widgets, index + 4 );
    kivu_post_1x( widgets( index ), widgets, index + 5 );
    kivu_post_b_c( widgets( index ), widgets, index + 6 );
    kivu_post_d__e( widgets( index ), widgets, index + 7 );
    kivu_post_f( widgets( index ), widgets, index + 8 );
    kivu_post_g( widgets( index ), widgets, index + 9 );
    kivu_post__h( widgets( index ), widgets, index + 10 );
    kivu_post_ij( widgets( index ), widgets, index + 11 );
    kivu_post_k__l( widgets( index ), widgets, index + 12 );
    null;
  end kivu_post_top;
  procedure kivu_post_a__b( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_a__b;
  procedure kivu_post_x___y( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_x___y;
  procedure kivu_post_( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_;
  procedure kivu_post__( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post__;
  procedure kivu_post_1x( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_1x;
  procedure kivu_post_b_c( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_b_c;
  procedure kivu_post_d__e( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_d__e;
  procedure kivu_post_f( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_f;
  procedure kivu_post_g( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_g;
  procedure kivu_post__h( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post__h;
  procedure kivu_post_ij( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_ij;
  procedure kivu_post_k__l( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_k__l;
end my_mod_uil;
