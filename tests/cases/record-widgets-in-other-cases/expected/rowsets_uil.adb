with Xm;
with Xmdef;
with unchecked_deallocation;
with rowsets_client_data;
use  rowsets_client_data;
package body rowsets_uil is
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
  function kivu_create_main( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_row_one( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_cell( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_anon_xmlabel_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_anon_xmframe_2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_aside( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_area( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_main( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_row_one( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_cell( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_xmlabel_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_xmframe_2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_aside( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_area( parent : in xtr5.widget;
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
    if upc_name = "MAIN" then
      widgets := kivu_create_main( parent );
      kivu_post_main( parent, widgets, widgets'first );
    elsif upc_name = "ASIDE" then
      widgets := kivu_create_aside( parent );
      kivu_post_aside( parent, widgets, widgets'first );
    elsif upc_name = "ROW_ONE" then
      widgets := kivu_create_row_one( parent );
      kivu_post_row_one( parent, widgets, widgets'first );
    elsif upc_name = "ROW_ONE" then
      widgets := kivu_create_row_one( parent );
      kivu_post_row_one( parent, widgets, widgets'first );
    elsif upc_name = "CELL" then
      widgets := kivu_create_cell( parent );
      kivu_post_cell( parent, widgets, widgets'first );
    elsif upc_name = "CELL" then
      widgets := kivu_create_cell( parent );
      kivu_post_cell( parent, widgets, widgets'first );
    elsif upc_name = "CELL" then
      widgets := kivu_create_cell( parent );
      kivu_post_cell( parent, widgets, widgets'first );
    elsif upc_name = "CELL" then
      widgets := kivu_create_cell( parent );
      kivu_post_cell( parent, widgets, widgets'first );
    elsif upc_name = "ROW_ONE" then
      widgets := kivu_create_row_one( parent );
      kivu_post_row_one( parent, widgets, widgets'first );
    elsif upc_name = "CELL" then
      widgets := kivu_create_cell( parent );
      kivu_post_cell( parent, widgets, widgets'first );
    elsif upc_name = "CELL" then
      widgets := kivu_create_cell( parent );
      kivu_post_cell( parent, widgets, widgets'first );
    elsif upc_name = "CELL" then
      widgets := kivu_create_cell( parent );
      kivu_post_cell( parent, widgets, widgets'first );
    elsif upc_name = "AREA" then
      widgets := kivu_create_area( parent );
      kivu_post_area( parent, widgets, widgets'first );
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
  function Create_main( parent : in XtR5.Widget )
    return main_Rec is
    widgets : xtr5.widgetlist_ptr;
  begin
    FetchWidget( parent, "Main", widgets );
    return main;
  end Create_main;
  function kivu_create_main( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 4 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "Main",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_row_one( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_anon_xmlabel_1( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_row_one( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 4 ) := kivu_create_anon_xmframe_2( self );
    xtr5.managechild( child_lists( 4 )( 1 ) );
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
      main.main := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_main;
  function kivu_create_row_one( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateRowColumn(
              parent,
              "Row_One",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_cell( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_cell( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 3 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_Title" );
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
      main.row_one := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_row_one;
  function kivu_create_cell( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "cell",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NhelpCallback, rowsets_cb_proc'address, 1 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      main.cell := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_cell;
  function kivu_create_anon_xmlabel_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "anon_XmLabel_1",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NhelpCallback, rowsets_cb_proc'address, 2 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      main.anon_xmlabel_1 := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_anon_xmlabel_1;
  function kivu_create_anon_xmframe_2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateFrame(
              parent,
              "anon_XmFrame_2",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_row_one( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_cell( self );
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
      main.anon_xmframe_2 := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_anon_xmframe_2;
  function Create_aside( parent : in XtR5.Widget )
    return aside_Rec is
    widgets : xtr5.widgetlist_ptr;
  begin
    FetchWidget( parent, "Aside", widgets );
    return aside;
  end Create_aside;
  function kivu_create_aside( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateScrolledWindow(
              parent,
              "Aside",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_area( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_VertScrollBar" );
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
      aside.aside := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_aside;
  function kivu_create_area( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateText(
              parent,
              "area",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      aside.area := self;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_area;
  procedure kivu_post_main( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_row_one( widgets( index ), widgets, index + 1 );
    kivu_post_anon_xmlabel_1( widgets( index ), widgets, index + 5 );
    kivu_post_row_one( widgets( index ), widgets, index + 6 );
    kivu_post_anon_xmframe_2( widgets( index ), widgets, index + 10 );
    null;
  end kivu_post_main;
  procedure kivu_post_row_one( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_cell( widgets( index ), widgets, index + 1 );
    kivu_post_cell( widgets( index ), widgets, index + 2 );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_Title" );
    null;
  end kivu_post_row_one;
  procedure kivu_post_cell( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_cell;
  procedure kivu_post_anon_xmlabel_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_anon_xmlabel_1;
  procedure kivu_post_anon_xmframe_2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_row_one( widgets( index ), widgets, index + 1 );
    kivu_post_cell( widgets( index ), widgets, index + 5 );
    null;
  end kivu_post_anon_xmframe_2;
  procedure kivu_post_aside( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_area( widgets( index ), widgets, index + 1 );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_VertScrollBar" );
    null;
  end kivu_post_aside;
  procedure kivu_post_area( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_area;
end rowsets_uil;
