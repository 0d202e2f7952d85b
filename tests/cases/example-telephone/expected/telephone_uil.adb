with Xm;
with Xmdef;
with unchecked_deallocation;
with telephone_client_data;
use  telephone_client_data;
package body telephone_uil is
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
  function kivu_create_phone_column( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_number_field( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_keypad( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_key_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_key_2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_key_3( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_key_4( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_key_5( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_key_6( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_key_7( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_key_8( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_key_9( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_star_key( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_key_0( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_hash_key( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_call_row( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_call_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_hang_up_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_phone_column( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_number_field( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_keypad( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_key_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_key_2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_key_3( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_key_4( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_key_5( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_key_6( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_key_7( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_key_8( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_key_9( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_star_key( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_key_0( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_hash_key( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_call_row( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_call_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_hang_up_button( parent : in xtr5.widget;
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
    if upc_name = "PHONE_COLUMN" then
      widgets := kivu_create_phone_column( parent );
      kivu_post_phone_column( parent, widgets, widgets'first );
    elsif upc_name = "NUMBER_FIELD" then
      widgets := kivu_create_number_field( parent );
      kivu_post_number_field( parent, widgets, widgets'first );
    elsif upc_name = "KEYPAD" then
      widgets := kivu_create_keypad( parent );
      kivu_post_keypad( parent, widgets, widgets'first );
    elsif upc_name = "CALL_ROW" then
      widgets := kivu_create_call_row( parent );
      kivu_post_call_row( parent, widgets, widgets'first );
    elsif upc_name = "KEY_1" then
      widgets := kivu_create_key_1( parent );
      kivu_post_key_1( parent, widgets, widgets'first );
    elsif upc_name = "KEY_2" then
      widgets := kivu_create_key_2( parent );
      kivu_post_key_2( parent, widgets, widgets'first );
    elsif upc_name = "KEY_3" then
      widgets := kivu_create_key_3( parent );
      kivu_post_key_3( parent, widgets, widgets'first );
    elsif upc_name = "KEY_4" then
      widgets := kivu_create_key_4( parent );
      kivu_post_key_4( parent, widgets, widgets'first );
    elsif upc_name = "KEY_5" then
      widgets := kivu_create_key_5( parent );
      kivu_post_key_5( parent, widgets, widgets'first );
    elsif upc_name = "KEY_6" then
      widgets := kivu_create_key_6( parent );
      kivu_post_key_6( parent, widgets, widgets'first );
    elsif upc_name = "KEY_7" then
      widgets := kivu_create_key_7( parent );
      kivu_post_key_7( parent, widgets, widgets'first );
    elsif upc_name = "KEY_8" then
      widgets := kivu_create_key_8( parent );
      kivu_post_key_8( parent, widgets, widgets'first );
    elsif upc_name = "KEY_9" then
      widgets := kivu_create_key_9( parent );
      kivu_post_key_9( parent, widgets, widgets'first );
    elsif upc_name = "STAR_KEY" then
      widgets := kivu_create_star_key( parent );
      kivu_post_star_key( parent, widgets, widgets'first );
    elsif upc_name = "KEY_0" then
      widgets := kivu_create_key_0( parent );
      kivu_post_key_0( parent, widgets, widgets'first );
    elsif upc_name = "HASH_KEY" then
      widgets := kivu_create_hash_key( parent );
      kivu_post_hash_key( parent, widgets, widgets'first );
    elsif upc_name = "CALL_BUTTON" then
      widgets := kivu_create_call_button( parent );
      kivu_post_call_button( parent, widgets, widgets'first );
    elsif upc_name = "HANG_UP_BUTTON" then
      widgets := kivu_create_hang_up_button( parent );
      kivu_post_hang_up_button( parent, widgets, widgets'first );
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
  function kivu_create_phone_column( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    integer_1 : constant integer := 1;
    integer_2 : constant integer := 6;
    begin
    xtr5.setarg( args( 1 ), xmdef.norientation, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nspacing, integer_2 );
    self := Xm1_2_2.CreateRowColumn(
              parent,
              "Phone_Column",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_number_field( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_keypad( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_call_row( self );
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
  end kivu_create_phone_column;
  function kivu_create_number_field( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    integer_1 : constant integer := 24;
    integer_2 : constant integer := 32;
    begin
    xtr5.setarg( args( 1 ), xmdef.ncolumns, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nmaxLength, integer_2 );
    self := Xm1_2_2.CreateTextField(
              parent,
              "Number_Field",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, telephone_cb_proc'address, 1 );
    xtr5.addcallback( self, Xmdef.NvalueChangedCallback, telephone_cb_proc'address, 2 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_number_field;
  function kivu_create_keypad( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 12 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    integer_1 : constant integer := 2;
    integer_2 : constant integer := 2;
    integer_3 : constant integer := 4;
    integer_4 : constant integer := 6;
    begin
    xtr5.setarg( args( 1 ), xmdef.norientation, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.npacking, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.nnumColumns, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nspacing, integer_4 );
    self := Xm1_2_2.CreateRowColumn(
              parent,
              "Keypad",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_key_1( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_key_2( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_key_3( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 4 ) := kivu_create_key_4( self );
    xtr5.managechild( child_lists( 4 )( 1 ) );
    child_lists( 5 ) := kivu_create_key_5( self );
    xtr5.managechild( child_lists( 5 )( 1 ) );
    child_lists( 6 ) := kivu_create_key_6( self );
    xtr5.managechild( child_lists( 6 )( 1 ) );
    child_lists( 7 ) := kivu_create_key_7( self );
    xtr5.managechild( child_lists( 7 )( 1 ) );
    child_lists( 8 ) := kivu_create_key_8( self );
    xtr5.managechild( child_lists( 8 )( 1 ) );
    child_lists( 9 ) := kivu_create_key_9( self );
    xtr5.managechild( child_lists( 9 )( 1 ) );
    child_lists( 10 ) := kivu_create_star_key( self );
    xtr5.managechild( child_lists( 10 )( 1 ) );
    child_lists( 11 ) := kivu_create_key_0( self );
    xtr5.managechild( child_lists( 11 )( 1 ) );
    child_lists( 12 ) := kivu_create_hash_key( self );
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
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_keypad;
  function kivu_create_key_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    integer_1 : constant integer := 18;
    integer_2 : constant integer := 6;
    string_3_1 : constant string :=
      "1" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    begin
    xtr5.setarg( args( 1 ), xmdef.nmarginWidth, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nmarginHeight, integer_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "Key_1",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, telephone_cb_proc'address, 3 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_key_1;
  function kivu_create_key_2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    integer_1 : constant integer := 18;
    integer_2 : constant integer := 6;
    string_3_1 : constant string :=
      "2 abc" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    begin
    xtr5.setarg( args( 1 ), xmdef.nmarginWidth, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nmarginHeight, integer_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "Key_2",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, telephone_cb_proc'address, 4 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_key_2;
  function kivu_create_key_3( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    integer_1 : constant integer := 18;
    integer_2 : constant integer := 6;
    string_3_1 : constant string :=
      "3 def" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    begin
    xtr5.setarg( args( 1 ), xmdef.nmarginWidth, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nmarginHeight, integer_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "Key_3",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, telephone_cb_proc'address, 5 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_key_3;
  function kivu_create_key_4( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    integer_1 : constant integer := 18;
    integer_2 : constant integer := 6;
    string_3_1 : constant string :=
      "4 ghi" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    begin
    xtr5.setarg( args( 1 ), xmdef.nmarginWidth, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nmarginHeight, integer_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "Key_4",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, telephone_cb_proc'address, 6 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_key_4;
  function kivu_create_key_5( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    integer_1 : constant integer := 18;
    integer_2 : constant integer := 6;
    string_3_1 : constant string :=
      "5 jkl" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    begin
    xtr5.setarg( args( 1 ), xmdef.nmarginWidth, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nmarginHeight, integer_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "Key_5",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, telephone_cb_proc'address, 7 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_key_5;
  function kivu_create_key_6( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    integer_1 : constant integer := 18;
    integer_2 : constant integer := 6;
    string_3_1 : constant string :=
      "6 mno" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    begin
    xtr5.setarg( args( 1 ), xmdef.nmarginWidth, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nmarginHeight, integer_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "Key_6",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, telephone_cb_proc'address, 8 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_key_6;
  function kivu_create_key_7( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    integer_1 : constant integer := 18;
    integer_2 : constant integer := 6;
    string_3_1 : constant string :=
      "7 pqrs" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    begin
    xtr5.setarg( args( 1 ), xmdef.nmarginWidth, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nmarginHeight, integer_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "Key_7",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, telephone_cb_proc'address, 9 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_key_7;
  function kivu_create_key_8( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    integer_1 : constant integer := 18;
    integer_2 : constant integer := 6;
    string_3_1 : constant string :=
      "8 tuv" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    begin
    xtr5.setarg( args( 1 ), xmdef.nmarginWidth, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nmarginHeight, integer_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "Key_8",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, telephone_cb_proc'address, 10 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_key_8;
  function kivu_create_key_9( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    integer_1 : constant integer := 18;
    integer_2 : constant integer := 6;
    string_3_1 : constant string :=
      "9 wxyz" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    begin
    xtr5.setarg( args( 1 ), xmdef.nmarginWidth, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nmarginHeight, integer_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "Key_9",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, telephone_cb_proc'address, 11 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_key_9;
  function kivu_create_star_key( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    integer_1 : constant integer := 18;
    integer_2 : constant integer := 6;
    string_3_1 : constant string :=
      "*" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    begin
    xtr5.setarg( args( 1 ), xmdef.nmarginWidth, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nmarginHeight, integer_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "Star_Key",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, telephone_cb_proc'address, 12 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_star_key;
  function kivu_create_key_0( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    integer_1 : constant integer := 18;
    integer_2 : constant integer := 6;
    string_3_1 : constant string :=
      "0" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    begin
    xtr5.setarg( args( 1 ), xmdef.nmarginWidth, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nmarginHeight, integer_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "Key_0",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, telephone_cb_proc'address, 13 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_key_0;
  function kivu_create_hash_key( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    integer_1 : constant integer := 18;
    integer_2 : constant integer := 6;
    string_3_1 : constant string :=
      "#" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    begin
    xtr5.setarg( args( 1 ), xmdef.nmarginWidth, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nmarginHeight, integer_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "Hash_Key",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, telephone_cb_proc'address, 14 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_hash_key;
  function kivu_create_call_row( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    integer_1 : constant integer := 2;
    integer_2 : constant integer := 2;
    begin
    xtr5.setarg( args( 1 ), xmdef.norientation, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.npacking, integer_2 );
    self := Xm1_2_2.CreateRowColumn(
              parent,
              "Call_Row",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_call_button( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_hang_up_button( self );
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
  end kivu_create_call_row;
  function kivu_create_call_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "Call" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "Call_Button",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, telephone_cb_proc'address, 15 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_call_button;
  function kivu_create_hang_up_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    string_1_1 : constant string :=
      "Hang Up" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    boolean_2 : constant boolean := false;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nsensitive, boolean_2 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "Hang_Up_Button",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, telephone_cb_proc'address, 16 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_hang_up_button;
  procedure kivu_post_phone_column( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    kivu_post_number_field( widgets( index ), widgets, index + 1 );
    kivu_post_keypad( widgets( index ), widgets, index + 2 );
    kivu_post_call_row( widgets( index ), widgets, index + 15 );
    null;
  end kivu_post_phone_column;
  procedure kivu_post_number_field( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    null;
  end kivu_post_number_field;
  procedure kivu_post_keypad( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    kivu_post_key_1( widgets( index ), widgets, index + 1 );
    kivu_post_key_2( widgets( index ), widgets, index + 2 );
    kivu_post_key_3( widgets( index ), widgets, index + 3 );
    kivu_post_key_4( widgets( index ), widgets, index + 4 );
    kivu_post_key_5( widgets( index ), widgets, index + 5 );
    kivu_post_key_6( widgets( index ), widgets, index + 6 );
    kivu_post_key_7( widgets( index ), widgets, index + 7 );
    kivu_post_key_8( widgets( index ), widgets, index + 8 );
    kivu_post_key_9( widgets( index ), widgets, index + 9 );
    kivu_post_star_key( widgets( index ), widgets, index + 10 );
    kivu_post_key_0( widgets( index ), widgets, index + 11 );
    kivu_post_hash_key( widgets( index ), widgets, index + 12 );
    null;
  end kivu_post_keypad;
  procedure kivu_post_key_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_key_1;
  procedure kivu_post_key_2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_key_2;
  procedure kivu_post_key_3( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_key_3;
  procedure kivu_post_key_4( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_key_4;
  procedure kivu_post_key_5( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_key_5;
  procedure kivu_post_key_6( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_key_6;
  procedure kivu_post_key_7( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_key_7;
  procedure kivu_post_key_8( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_key_8;
  procedure kivu_post_key_9( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_key_9;
  procedure kivu_post_star_key( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_star_key;
  procedure kivu_post_key_0( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_key_0;
  procedure kivu_post_hash_key( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_hash_key;
  procedure kivu_post_call_row( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    kivu_post_call_button( widgets( index ), widgets, index + 1 );
    kivu_post_hang_up_button( widgets( index ), widgets, index + 2 );
    null;
  end kivu_post_call_row;
  procedure kivu_post_call_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_call_button;
  procedure kivu_post_hang_up_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    null;
  end kivu_post_hang_up_button;
end telephone_uil;
