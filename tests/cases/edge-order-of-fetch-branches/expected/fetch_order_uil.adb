with Xm;
with Xmdef;
with unchecked_deallocation;
package body fetch_order_uil is
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
  function kivu_create_deep_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_a_b_c( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_x( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_y( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_z( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_second( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_other( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_xmframe_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_deep_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_a_b_c( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_x( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_y( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_z( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_second( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_other( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  function uppercase_char( chr : in character )
    return character is
    diff : constant :=
           character'pos( 'a' ) - character'pos( 'A' );
  begin
    if chr in 'a' .. 'z' then
      return character'val( character'pos( chr ) - diff );
    else
      return chr;
  end uppercase_char;
  function uppercase_str( str : in string )
    return string is
    upc : string( 1 .. str'length ) := str;
  begin
    for i in upc'range loop
      upc( i ) := uppercase_char( upc( i ) );
    end loop;
    return upc;
  end uppercase_str;
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    upc_name : constant string := uppercase_str( name );
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if upc_name = "$TOP" then
      widgets := kivu_create_top( parent );
      kivu_post_top( parent, widgets, widgets'first );
    elsif upc_name = "SECOND" then
      widgets := kivu_create_second( parent );
      kivu_post_second( parent, widgets, widgets'first );
    elsif upc_name = "A$B$$C" then
      widgets := kivu_create_a_b_c( parent );
      kivu_post_a_b_c( parent, widgets, widgets'first );
    elsif upc_name = "Z_" then
      widgets := kivu_create_z( parent );
      kivu_post_z( parent, widgets, widgets'first );
    elsif upc_name = "A$B$$C" then
      widgets := kivu_create_a_b_c( parent );
      kivu_post_a_b_c( parent, widgets, widgets'first );
    elsif upc_name = "DEEP$$1" then
      widgets := kivu_create_deep_1( parent );
      kivu_post_deep_1( parent, widgets, widgets'first );
    elsif upc_name = "A$B$$C" then
      widgets := kivu_create_a_b_c( parent );
      kivu_post_a_b_c( parent, widgets, widgets'first );
    elsif upc_name = "X" then
      widgets := kivu_create_x( parent );
      kivu_post_x( parent, widgets, widgets'first );
    elsif upc_name = "Z_" then
      widgets := kivu_create_z( parent );
      kivu_post_z( parent, widgets, widgets'first );
    elsif upc_name = "Y" then
      widgets := kivu_create_y( parent );
      kivu_post_y( parent, widgets, widgets'first );
    elsif upc_name = "X" then
      widgets := kivu_create_x( parent );
      kivu_post_x( parent, widgets, widgets'first );
    elsif upc_name = "Z_" then
      widgets := kivu_create_z( parent );
      kivu_post_z( parent, widgets, widgets'first );
    elsif upc_name = "Y" then
      widgets := kivu_create_y( parent );
      kivu_post_y( parent, widgets, widgets'first );
    elsif upc_name = "_HIDDEN_" then
      widgets := kivu_create_hidden( parent );
      kivu_post_hidden( parent, widgets, widgets'first );
    elsif upc_name = "DEEPER" then
      widgets := kivu_create_deeper( parent );
      kivu_post_deeper( parent, widgets, widgets'first );
    elsif upc_name = "X" then
      widgets := kivu_create_x( parent );
      kivu_post_x( parent, widgets, widgets'first );
    elsif upc_name = "Z_" then
      widgets := kivu_create_z( parent );
      kivu_post_z( parent, widgets, widgets'first );
    elsif upc_name = "Y" then
      widgets := kivu_create_y( parent );
      kivu_post_y( parent, widgets, widgets'first );
    elsif upc_name = "X" then
      widgets := kivu_create_x( parent );
      kivu_post_x( parent, widgets, widgets'first );
    elsif upc_name = "OTHER" then
      widgets := kivu_create_other( parent );
      kivu_post_other( parent, widgets, widgets'first );
    elsif upc_name = "Y" then
      widgets := kivu_create_y( parent );
      kivu_post_y( parent, widgets, widgets'first );
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
    child_lists : array( 1 .. 5 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "$top",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_anon_xmframe_1( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_a_b_c( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 3 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_Title" );
    child_lists( 4 ) := kivu_create_z( self );
    xtr5.managechild( child_lists( 4 )( 1 ) );
    child_lists( 5 ) := kivu_create_a_b_c( self );
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
  end kivu_create_top;
  function kivu_create_anon_xmframe_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
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
    child_lists( 1 ) := kivu_create_deep_1( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_a_b_c( self );
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
  end kivu_create_anon_xmframe_1;
  function kivu_create_deep_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "deep$$1",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_deep_1;
  function kivu_create_a_b_c( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "a$b$$c",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_Symbol" );
    child_lists( 2 ) := kivu_create_x( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_z( self );
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
  end kivu_create_a_b_c;
  function kivu_create_x( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateFrame(
              parent,
              "x",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_y( self );
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
  end kivu_create_x;
  function kivu_create_y( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "y",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_y;
  function kivu_create_z( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "z_",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_z;
  function kivu_create_second( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "Second",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_x( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_other( self );
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
  end kivu_create_second;
  function kivu_create_other( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "other",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_other;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_anon_xmframe_1( widgets( index ), widgets, index + 1 );
    kivu_post_a_b_c( widgets( index ), widgets, index + 8 );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_Title" );
    kivu_post_z( widgets( index ), widgets, index + 17 );
    kivu_post_a_b_c( widgets( index ), widgets, index + 18 );
    null;
  end kivu_post_top;
  procedure kivu_post_anon_xmframe_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_deep_1( widgets( index ), widgets, index + 1 );
    kivu_post_a_b_c( widgets( index ), widgets, index + 2 );
    null;
  end kivu_post_anon_xmframe_1;
  procedure kivu_post_deep_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_deep_1;
  procedure kivu_post_a_b_c( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_Symbol" );
    kivu_post_x( widgets( index ), widgets, index + 2 );
    kivu_post_z( widgets( index ), widgets, index + 4 );
    null;
  end kivu_post_a_b_c;
  procedure kivu_post_x( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_y( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_x;
  procedure kivu_post_y( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_y;
  procedure kivu_post_z( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_z;
  procedure kivu_post_second( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_x( widgets( index ), widgets, index + 1 );
    kivu_post_other( widgets( index ), widgets, index + 3 );
    null;
  end kivu_post_second;
  procedure kivu_post_other( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_other;
end fetch_order_uil;
