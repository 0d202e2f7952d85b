with Xm;
with Xmdef;
with unchecked_deallocation;
package body demo_uil is
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
  function kivu_create_plain( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_named( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_joined( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_options( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_empty( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_tab( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_quote( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_hebrew( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_latin( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_field( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_main( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_plain( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_named( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_joined( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_options( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_empty( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_tab( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_quote( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_hebrew( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_latin( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_field( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "main" then
      widgets := kivu_create_main( parent );
      kivu_post_main( parent, widgets, widgets'first );
    elsif name = "plain" then
      widgets := kivu_create_plain( parent );
      kivu_post_plain( parent, widgets, widgets'first );
    elsif name = "named" then
      widgets := kivu_create_named( parent );
      kivu_post_named( parent, widgets, widgets'first );
    elsif name = "joined" then
      widgets := kivu_create_joined( parent );
      kivu_post_joined( parent, widgets, widgets'first );
    elsif name = "options" then
      widgets := kivu_create_options( parent );
      kivu_post_options( parent, widgets, widgets'first );
    elsif name = "empty" then
      widgets := kivu_create_empty( parent );
      kivu_post_empty( parent, widgets, widgets'first );
    elsif name = "tab" then
      widgets := kivu_create_tab( parent );
      kivu_post_tab( parent, widgets, widgets'first );
    elsif name = "quote" then
      widgets := kivu_create_quote( parent );
      kivu_post_quote( parent, widgets, widgets'first );
    elsif name = "hebrew" then
      widgets := kivu_create_hebrew( parent );
      kivu_post_hebrew( parent, widgets, widgets'first );
    elsif name = "latin" then
      widgets := kivu_create_latin( parent );
      kivu_post_latin( parent, widgets, widgets'first );
    elsif name = "field" then
      widgets := kivu_create_field( parent );
      kivu_post_field( parent, widgets, widgets'first );
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
  function kivu_create_main( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 10 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "main",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_plain( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_named( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_joined( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 4 ) := kivu_create_options( self );
    xtr5.managechild( child_lists( 4 )( 1 ) );
    child_lists( 5 ) := kivu_create_empty( self );
    xtr5.managechild( child_lists( 5 )( 1 ) );
    child_lists( 6 ) := kivu_create_tab( self );
    xtr5.managechild( child_lists( 6 )( 1 ) );
    child_lists( 7 ) := kivu_create_quote( self );
    xtr5.managechild( child_lists( 7 )( 1 ) );
    child_lists( 8 ) := kivu_create_hebrew( self );
    xtr5.managechild( child_lists( 8 )( 1 ) );
    child_lists( 9 ) := kivu_create_latin( self );
    xtr5.managechild( child_lists( 9 )( 1 ) );
    child_lists( 10 ) := kivu_create_field( self );
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
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_main;
  function kivu_create_plain( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "text" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "plain",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_plain;
  function kivu_create_named( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    integer_1 : constant integer := 100;
    string_2_1 : constant string :=
      "The title" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    integer_3 : constant integer := 20;
    begin
    xtr5.setarg( args( 1 ), xmdef.nwidth, integer_1 );
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 2 ), xmdef.nlabelString, compound_string_2 );
    xtr5.setarg( args( 3 ), xmdef.nheight, integer_3 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "named",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_2 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_named;
  function kivu_create_joined( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "one" &
      character'val(   0 );
    string_1_2 : constant string :=
      "two" &
      character'val(   0 );
    string_1_3 : constant string :=
      "three" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    compound_string_segment_1 : xm1_2_2.xmstring;
    compound_string_temp_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_segment_1 :=
      xm1_2_2.stringsegmentcreate( string_1_2,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   TRUE );
    compound_string_temp_1 :=
      xm1_2_2.stringcopy( compound_string_1 );
    xm1_2_2.stringfree( compound_string_1 );
    compound_string_1 :=
      xm1_2_2.stringconcat( compound_string_temp_1,
                            compound_string_segment_1 );
    xm1_2_2.stringfree( compound_string_temp_1 );
    xm1_2_2.stringfree( compound_string_segment_1 );
    compound_string_segment_1 :=
      xm1_2_2.stringsegmentcreate( string_1_3,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_temp_1 :=
      xm1_2_2.stringcopy( compound_string_1 );
    xm1_2_2.stringfree( compound_string_1 );
    compound_string_1 :=
      xm1_2_2.stringconcat( compound_string_temp_1,
                            compound_string_segment_1 );
    xm1_2_2.stringfree( compound_string_temp_1 );
    xm1_2_2.stringfree( compound_string_segment_1 );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "joined",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_joined;
  function kivu_create_options( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "right" &
      character'val(   0 );
    string_1_2 : constant string :=
      "left" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    compound_string_segment_1 : xm1_2_2.xmstring;
    compound_string_temp_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_R_TO_L,
                                   FALSE );
    compound_string_segment_1 :=
      xm1_2_2.stringsegmentcreate( string_1_2,
                                   "iso_latin1",
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_temp_1 :=
      xm1_2_2.stringcopy( compound_string_1 );
    xm1_2_2.stringfree( compound_string_1 );
    compound_string_1 :=
      xm1_2_2.stringconcat( compound_string_temp_1,
                            compound_string_segment_1 );
    xm1_2_2.stringfree( compound_string_temp_1 );
    xm1_2_2.stringfree( compound_string_segment_1 );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "options",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_options;
  function kivu_create_empty( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "" & character'val( 0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "empty",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_empty;
  function kivu_create_tab( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "a" &
      character'val(   9 ) &
      "b" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "tab",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_tab;
  function kivu_create_quote( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "ab""c" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "quote",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_quote;
  function kivu_create_hebrew( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "abc" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   "iso_hebrew",
                                   xm1_2_2.STRING_DIRECTION_R_TO_L,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "hebrew",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_hebrew;
  function kivu_create_latin( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "caf" &
      character'val( 233 ) &
      "s" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "latin",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_latin;
  function kivu_create_field( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    string_1 : constant string :=
      "x" &
      character'val(   0 );
    integer_2 : constant integer := 8;
    begin
    xtr5.setarg( args( 1 ), xmdef.nvalue, string_1( string_1'first )'address );
    xtr5.setarg( args( 2 ), xmdef.ncolumns, integer_2 );
    self := Xm1_2_2.CreateTextField(
              parent,
              "field",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_field;
  procedure kivu_post_main( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_plain( widgets( index ), widgets, index + 1 );
    kivu_post_named( widgets( index ), widgets, index + 2 );
    kivu_post_joined( widgets( index ), widgets, index + 3 );
    kivu_post_options( widgets( index ), widgets, index + 4 );
    kivu_post_empty( widgets( index ), widgets, index + 5 );
    kivu_post_tab( widgets( index ), widgets, index + 6 );
    kivu_post_quote( widgets( index ), widgets, index + 7 );
    kivu_post_hebrew( widgets( index ), widgets, index + 8 );
    kivu_post_latin( widgets( index ), widgets, index + 9 );
    kivu_post_field( widgets( index ), widgets, index + 10 );
    null;
  end kivu_post_main;
  procedure kivu_post_plain( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_plain;
  procedure kivu_post_named( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_named;
  procedure kivu_post_joined( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_joined;
  procedure kivu_post_options( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_options;
  procedure kivu_post_empty( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_empty;
  procedure kivu_post_tab( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_tab;
  procedure kivu_post_quote( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_quote;
  procedure kivu_post_hebrew( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_hebrew;
  procedure kivu_post_latin( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_latin;
  procedure kivu_post_field( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    null;
  end kivu_post_field;
end demo_uil;
