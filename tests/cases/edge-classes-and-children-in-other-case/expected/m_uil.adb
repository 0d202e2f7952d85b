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
  function kivu_create_box( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_cas( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_pull( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_ask( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_bar( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_box( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_cas( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_pull( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_ask( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_bar( parent : in xtr5.widget;
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
    if upc_name = "BOX" then
      widgets := kivu_create_box( parent );
      kivu_post_box( parent, widgets, widgets'first );
    elsif upc_name = "ASK" then
      widgets := kivu_create_ask( parent );
      kivu_post_ask( parent, widgets, widgets'first );
    elsif upc_name = "BAR" then
      widgets := kivu_create_bar( parent );
      kivu_post_bar( parent, widgets, widgets'first );
    elsif upc_name = "CAS" then
      widgets := kivu_create_cas( parent );
      kivu_post_cas( parent, widgets, widgets'first );
    elsif upc_name = "PULL" then
      widgets := kivu_create_pull( parent );
      kivu_post_pull( parent, widgets, widgets'first );
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
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    self := Xm1_2_2.CreateMessageBox(
              parent,
              "Box",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    if child_lists( 1 )( 1 ) /= XtR5.XtNULL then
    xtr5.addcallback( child_lists( 1 )( 1 ), Xmdef.NactivateCallback, m_cb_proc'address, 1 );
      null;
    end if;
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_CANCEL_BUTTON );
    child_lists( 3 ) := kivu_create_cas( self );
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
  end kivu_create_box;
  function kivu_create_pull( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "PULL",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_pull;
  function kivu_create_cas( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    child_lists( 1 ) := kivu_create_pull( parent );
    declare
    string_1_1 : constant string :=
      "x" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateCascadeButton(
              parent,
              "CAS",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
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
  end kivu_create_cas;
  function kivu_create_ask( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateQuestionDialog(
              parent,
              "Ask",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_ask;
  function kivu_create_bar( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateMenuBar(
              parent,
              "Bar",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_bar;
  procedure kivu_post_box( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*CAS";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ncancelButton, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    if auto_child /= XtR5.XtNULL then
      null;
    end if;
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_CANCEL_BUTTON );
    kivu_post_cas( widgets( index ), widgets, index + 3 );
    null;
  end kivu_post_box;
  procedure kivu_post_pull( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_pull;
  procedure kivu_post_cas( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    kivu_post_pull( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_cas;
  procedure kivu_post_ask( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_ask;
  procedure kivu_post_bar( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_bar;
end m_uil;
