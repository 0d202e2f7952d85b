with Xm;
with Xmdef;
with unchecked_deallocation;
with mixed_client_data;
use  mixed_client_data;
package body mixed_uil is
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
  function kivu_create_one( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_two( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_pane( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_anon_xmlabel_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_xm_frame_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_one( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_two( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_pane( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_xmlabel_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_xm_frame_1( parent : in xtr5.widget;
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
    if upc_name = "TOP" then
      widgets := kivu_create_top( parent );
      kivu_post_top( parent, widgets, widgets'first );
    elsif upc_name = "ONE" then
      widgets := kivu_create_one( parent );
      kivu_post_one( parent, widgets, widgets'first );
    elsif upc_name = "TWO" then
      widgets := kivu_create_two( parent );
      kivu_post_two( parent, widgets, widgets'first );
    elsif upc_name = "MENU" then
      widgets := kivu_create_menu( parent );
      kivu_post_menu( parent, widgets, widgets'first );
    elsif upc_name = "XM_FRAME_1" then
      widgets := kivu_create_xm_frame_1( parent );
      kivu_post_xm_frame_1( parent, widgets, widgets'first );
    elsif upc_name = "PANE" then
      widgets := kivu_create_pane( parent );
      kivu_post_pane( parent, widgets, widgets'first );
    elsif upc_name = "ONE" then
      widgets := kivu_create_one( parent );
      kivu_post_one( parent, widgets, widgets'first );
    elsif upc_name = "TWO" then
      widgets := kivu_create_two( parent );
      kivu_post_two( parent, widgets, widgets'first );
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
    child_lists : array( 1 .. 4 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "Top",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_one( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_two( self );
    child_lists( 3 ) := kivu_create_menu( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 4 ) := kivu_create_xm_frame_1( self );
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
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_top;
  function kivu_create_one( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "One",
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
  function kivu_create_two( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 5 );
  begin
    declare
    integer_1 : constant integer := 1;
    compound_string_table_2 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    integer_4 : constant integer := 2;
    begin
    xtr5.setarg( args( 1 ), xmdef.nx, integer_1 );
    declare
    string_1_1 : constant string :=
      "a" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_2( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 2 ), xmdef.nitems, compound_string_table_2( compound_string_table_2'first )'address );
    xtr5.setarg( args( 3 ), xmdef.nitemCount, xtr5.argval( compound_string_table_2'length - 1 ) );
    xtr5.setarg( args( 4 ), xmdef.ny, integer_4 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "TWO",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    for index_2 in compound_string_table_2'range loop
      if compound_string_table_2( index_2 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_2( index_2 ) );
      end if;
    end loop;
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_two;
  function kivu_create_pane( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "PANE",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_one( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_TearOffControl" );
    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then
      null;
    end if;
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
  end kivu_create_pane;
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
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_anon_xmlabel_1;
  function kivu_create_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    child_lists( 1 ) := kivu_create_pane( parent );
    child_lists( 2 ) := kivu_create_anon_xmlabel_1( parent );
    xtr5.setarg( args( 1 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateCascadeButton(
              parent,
              "Menu",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
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
  end kivu_create_menu;
  function kivu_create_xm_frame_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateFrame(
              parent,
              "xm_frame_1",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_two( self );
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
  end kivu_create_xm_frame_1;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_one( widgets( index ), widgets, index + 1 );
    kivu_post_two( widgets( index ), widgets, index + 2 );
    kivu_post_menu( widgets( index ), widgets, index + 3 );
    kivu_post_xm_frame_1( widgets( index ), widgets, index + 8 );
    null;
  end kivu_post_top;
  procedure kivu_post_one( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.addcallback( widgets( index ), Xmdef.NhelpCallback, mixed_cb_proc'address, 1 );
    widget_2 := xtr5.nametowidget( current_top_level,
                             widget_string_2 );
    mixed_cb_proc( widgets( index ), 2, create_callback_struct'address );
    null;
  end kivu_post_one;
  procedure kivu_post_two( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 5 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*One";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nuserData, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_two;
  procedure kivu_post_pane( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_one( widgets( index ), widgets, index + 1 );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_TearOffControl" );
    if auto_child /= XtR5.XtNULL then
    widget_3 := xtr5.nametowidget( current_top_level,
                             widget_string_3 );
    xtr5.addcallback( auto_child, Xmdef.NactivateCallback, mixed_cb_proc'address, 3 );
      null;
    end if;
    null;
  end kivu_post_pane;
  procedure kivu_post_anon_xmlabel_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_anon_xmlabel_1;
  procedure kivu_post_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    kivu_post_pane( widgets( index ), widgets, index + 1 );
    kivu_post_anon_xmlabel_1( widgets( index ), widgets, index + 2 );
    null;
  end kivu_post_menu;
  procedure kivu_post_xm_frame_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_two( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_xm_frame_1;
end mixed_uil;
