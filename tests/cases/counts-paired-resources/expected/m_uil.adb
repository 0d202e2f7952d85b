with Xm;
with Xmdef;
with unchecked_deallocation;
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
  function kivu_create_top( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_box( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_box( parent : in xtr5.widget;
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
    elsif name = "button" then
      widgets := kivu_create_button( parent );
      kivu_post_button( parent, widgets, widgets'first );
    elsif name = "menu" then
      widgets := kivu_create_menu( parent );
      kivu_post_menu( parent, widgets, widgets'first );
    elsif name = "box" then
      widgets := kivu_create_box( parent );
      kivu_post_box( parent, widgets, widgets'first );
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
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateMenuBar(
              parent,
              "top",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_button( self );
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
  end kivu_create_top;
  function kivu_create_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "menu",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_box( self );
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
  end kivu_create_menu;
  function kivu_create_box( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 7 );
  begin
    declare
    compound_string_table_1 : xm1_2_2.xmstringlist( 1 .. 3 ) := ( others => xtr5.xtnull );
    begin
    declare
    string_1_1 : constant string :=
      "a" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "b" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_1( 1 ) := compound_string_1;
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_1( 2 ) := compound_string_2;
    end;
    xtr5.setarg( args( 1 ), xmdef.nlistItems, compound_string_table_1( compound_string_table_1'first )'address );
    xtr5.setarg( args( 2 ), xmdef.nlistItemCount, xtr5.argval( compound_string_table_1'length - 1 ) );
    self := Xm1_2_2.CreateSelectionBox(
              parent,
              "box",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    for index_1 in compound_string_table_1'range loop
      if compound_string_table_1( index_1 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_1( index_1 ) );
      end if;
    end loop;
    end;
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      Xm1_2_2.SelectionBoxGetChild( self, Xm1_2_2.DIALOG_LIST );
    if child_lists( 1 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 7 );
    compound_string_table_1 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    compound_string_table_3 : xm1_2_2.xmstringlist( 1 .. 3 ) := ( others => xtr5.xtnull );
    begin
    declare
    string_1_1 : constant string :=
      "c" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_1( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 1 ), xmdef.nitems, compound_string_table_1( compound_string_table_1'first )'address );
    xtr5.setarg( args( 2 ), xmdef.nitemCount, xtr5.argval( compound_string_table_1'length - 1 ) );
    declare
    string_1_1 : constant string :=
      "d" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "e" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_3( 1 ) := compound_string_1;
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_3( 2 ) := compound_string_2;
    end;
    xtr5.setarg( args( 3 ), xmdef.nselectedItems, compound_string_table_3( compound_string_table_3'first )'address );
    xtr5.setarg( args( 4 ), xmdef.nselectedItemCount, xtr5.argval( compound_string_table_3'length - 1 ) );
    XtR5.SetValues( child_lists( 1 )( 1 ), args, 4 );
    for index_1 in compound_string_table_1'range loop
      if compound_string_table_1( index_1 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_1( index_1 ) );
      end if;
    end loop;
    for index_3 in compound_string_table_3'range loop
      if compound_string_table_3( index_3 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_3( index_3 ) );
      end if;
    end loop;
      null;
    end;
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
  end kivu_create_box;
  function kivu_create_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 15 );
  begin
    child_lists( 1 ) := kivu_create_menu( parent );
    declare
    integer_1 : constant integer := 1;
    compound_string_table_2 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    compound_string_table_4 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    compound_string_table_6 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    compound_string_table_8 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    compound_string_table_10 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    compound_string_table_12 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    integer_14 : constant integer := 2;
    begin
    xtr5.setarg( args( 1 ), xmdef.nx, integer_1 );
    declare
    string_1_1 : constant string :=
      "items" &
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
    declare
    string_1_1 : constant string :=
      "selectedItems" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_4( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 4 ), xmdef.nselectedItems, compound_string_table_4( compound_string_table_4'first )'address );
    xtr5.setarg( args( 5 ), xmdef.nselectedItemCount, xtr5.argval( compound_string_table_4'length - 1 ) );
    declare
    string_1_1 : constant string :=
      "listItems" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_6( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 6 ), xmdef.nlistItems, compound_string_table_6( compound_string_table_6'first )'address );
    xtr5.setarg( args( 7 ), xmdef.nlistItemCount, xtr5.argval( compound_string_table_6'length - 1 ) );
    declare
    string_1_1 : constant string :=
      "historyItems" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_8( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 8 ), xmdef.nhistoryItems, compound_string_table_8( compound_string_table_8'first )'address );
    xtr5.setarg( args( 9 ), xmdef.nhistoryItemCount, xtr5.argval( compound_string_table_8'length - 1 ) );
    declare
    string_1_1 : constant string :=
      "dirListItems" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_10( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 10 ), xmdef.ndirListItems, compound_string_table_10( compound_string_table_10'first )'address );
    xtr5.setarg( args( 11 ), xmdef.ndirListItemCount, xtr5.argval( compound_string_table_10'length - 1 ) );
    declare
    string_1_1 : constant string :=
      "fileListItems" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_12( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 12 ), xmdef.nfileListItems, compound_string_table_12( compound_string_table_12'first )'address );
    xtr5.setarg( args( 13 ), xmdef.nfileListItemCount, xtr5.argval( compound_string_table_12'length - 1 ) );
    xtr5.setarg( args( 14 ), xmdef.ny, integer_14 );
    xtr5.setarg( args( 15 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateCascadeButton(
              parent,
              "button",
              args,
              15 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    for index_2 in compound_string_table_2'range loop
      if compound_string_table_2( index_2 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_2( index_2 ) );
      end if;
    end loop;
    for index_4 in compound_string_table_4'range loop
      if compound_string_table_4( index_4 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_4( index_4 ) );
      end if;
    end loop;
    for index_6 in compound_string_table_6'range loop
      if compound_string_table_6( index_6 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_6( index_6 ) );
      end if;
    end loop;
    for index_8 in compound_string_table_8'range loop
      if compound_string_table_8( index_8 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_8( index_8 ) );
      end if;
    end loop;
    for index_10 in compound_string_table_10'range loop
      if compound_string_table_10( index_10 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_10( index_10 ) );
      end if;
    end loop;
    for index_12 in compound_string_table_12'range loop
      if compound_string_table_12( index_12 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_12( index_12 ) );
      end if;
    end loop;
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
  end kivu_create_button;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_button( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_top;
  procedure kivu_post_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_box( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_menu;
  procedure kivu_post_box( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 7 );
  begin
    declare
    arg_1 : constant string := "XmNitems" & ASCII.NUL;
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*top";
    widget_3 : xtr5.widget := xtr5.xtnull;
    widget_string_3 : constant string := "*top";
    arg_4 : constant string := "XmNitems" & ASCII.NUL;
    widget_4 : xtr5.widget := xtr5.xtnull;
    widget_string_4 : constant string := "*button";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), arg_1, widget_1 );
    widget_3 := xtr5.nametowidget( current_top_level,
                             widget_string_3 );
    xtr5.setarg( args( 3 ), xmdef.nleftWidget, widget_3 );
    widget_4 := xtr5.nametowidget( current_top_level,
                             widget_string_4 );
    xtr5.setarg( args( 4 ), arg_4, widget_4 );
    XtR5.SetValues( widgets( index ), args, 5 );
    end;
    auto_child :=
      Xm1_2_2.SelectionBoxGetChild( self, Xm1_2_2.DIALOG_LIST );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 7 );
    arg_1 : constant string := "XmNitems" & ASCII.NUL;
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*menu";
    widget_3 : xtr5.widget := xtr5.xtnull;
    widget_string_3 : constant string := "*menu";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), arg_1, widget_1 );
    widget_3 := xtr5.nametowidget( current_top_level,
                             widget_string_3 );
    xtr5.setarg( args( 3 ), xmdef.nleftWidget, widget_3 );
    XtR5.SetValues( auto_child, args, 3 );
      null;
    end;
      null;
    end if;
    null;
  end kivu_post_box;
  procedure kivu_post_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 15 );
  begin
    kivu_post_menu( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_button;
end m_uil;
