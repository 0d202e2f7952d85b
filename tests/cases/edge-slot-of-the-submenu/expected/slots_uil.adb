with Xm;
with Xmdef;
with unchecked_deallocation;
package body slots_uil is
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
  function kivu_create_bar( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_a( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_pane( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_b( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_other( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_c( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_d( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_anon_xmseparator_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_bar( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_a( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_pane( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_b( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_other( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_c( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_d( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_xmseparator_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "bar" then
      widgets := kivu_create_bar( parent );
      kivu_post_bar( parent, widgets, widgets'first );
    elsif name = "a" then
      widgets := kivu_create_a( parent );
      kivu_post_a( parent, widgets, widgets'first );
    elsif name = "b" then
      widgets := kivu_create_b( parent );
      kivu_post_b( parent, widgets, widgets'first );
    elsif name = "c" then
      widgets := kivu_create_c( parent );
      kivu_post_c( parent, widgets, widgets'first );
    elsif name = "d" then
      widgets := kivu_create_d( parent );
      kivu_post_d( parent, widgets, widgets'first );
    elsif name = "pane" then
      widgets := kivu_create_pane( parent );
      kivu_post_pane( parent, widgets, widgets'first );
    elsif name = "pane" then
      widgets := kivu_create_pane( parent );
      kivu_post_pane( parent, widgets, widgets'first );
    elsif name = "other" then
      widgets := kivu_create_other( parent );
      kivu_post_other( parent, widgets, widgets'first );
    elsif name = "pane" then
      widgets := kivu_create_pane( parent );
      kivu_post_pane( parent, widgets, widgets'first );
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
  function kivu_create_bar( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 4 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateMenuBar(
              parent,
              "bar",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_a( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_b( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_c( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 4 ) := kivu_create_d( self );
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
  end kivu_create_bar;
  function kivu_create_pane( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "pane",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_pane;
  function kivu_create_a( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    child_lists( 1 ) := kivu_create_pane( parent );
    xtr5.setarg( args( 1 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateCascadeButton(
              parent,
              "a",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      "red" &
      character'val(   0 );
    color_args_1 : xtr5.arglist( 1 .. 1 );
    color_colormap_1 : xlibr5.colormap;
    color_screen_rgb_1 : xlibr5.color;
    color_exact_rgb_1 : xlibr5.color;
    color_status_1 : boolean;
    begin
    XtR5.SetArg( color_args_1( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_1'address );
    XtR5.GetValues( self, color_args_1, 1 );
    if string_1'length > 1 then
      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),
                              color_colormap_1,
                              string_1,
                              color_screen_rgb_1,
                              color_exact_rgb_1,
                              color_status_1 );
    else
      color_status_1 := false;
    end if;
    if color_status_1 then
      color_1 := color_screen_rgb_1.pixel;
    else
      color_1 := xlibr5.pixel( 0 );
    end if;
    xtr5.setarg( args( 1 ), xmdef.nbackground, color_1 );
    XtR5.SetValues( self, args, 1 );
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
  end kivu_create_a;
  function kivu_create_other( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
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
  function kivu_create_b( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 6 );
  begin
    child_lists( 1 ) := kivu_create_pane( parent );
    child_lists( 2 ) := kivu_create_other( parent );
    declare
    compound_string_table_1 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    integer_3 : constant integer := 1;
    begin
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
    compound_string_table_1( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 1 ), xmdef.nitems, compound_string_table_1( compound_string_table_1'first )'address );
    xtr5.setarg( args( 2 ), xmdef.nitemCount, xtr5.argval( compound_string_table_1'length - 1 ) );
    xtr5.setarg( args( 3 ), xmdef.nheight, integer_3 );
    xtr5.setarg( args( 4 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateCascadeButton(
              parent,
              "b",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    for index_1 in compound_string_table_1'range loop
      if compound_string_table_1( index_1 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_1( index_1 ) );
      end if;
    end loop;
    end;
    declare
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      "green" &
      character'val(   0 );
    color_args_1 : xtr5.arglist( 1 .. 1 );
    color_colormap_1 : xlibr5.colormap;
    color_screen_rgb_1 : xlibr5.color;
    color_exact_rgb_1 : xlibr5.color;
    color_status_1 : boolean;
    begin
    XtR5.SetArg( color_args_1( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_1'address );
    XtR5.GetValues( self, color_args_1, 1 );
    if string_1'length > 1 then
      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),
                              color_colormap_1,
                              string_1,
                              color_screen_rgb_1,
                              color_exact_rgb_1,
                              color_status_1 );
    else
      color_status_1 := false;
    end if;
    if color_status_1 then
      color_1 := color_screen_rgb_1.pixel;
    else
      color_1 := xlibr5.pixel( 0 );
    end if;
    xtr5.setarg( args( 1 ), xmdef.nforeground, color_1 );
    XtR5.SetValues( self, args, 1 );
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
  end kivu_create_b;
  function kivu_create_c( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 6 );
  begin
    declare
    compound_string_table_1 : xm1_2_2.xmstringlist( 1 .. 3 ) := ( others => xtr5.xtnull );
    compound_string_table_3 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    integer_5 : constant integer := 1;
    begin
    declare
    string_1_1 : constant string :=
      "x" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "y" &
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
    declare
    string_1_1 : constant string :=
      "z" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_3( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 3 ), xmdef.nselectedItems, compound_string_table_3( compound_string_table_3'first )'address );
    xtr5.setarg( args( 4 ), xmdef.nselectedItemCount, xtr5.argval( compound_string_table_3'length - 1 ) );
    xtr5.setarg( args( 5 ), xmdef.nwidth, integer_5 );
    self := Xm1_2_2.CreateOptionMenu(
              parent,
              "c",
              args,
              5 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
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
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_c;
  function kivu_create_anon_xmseparator_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateSeparator(
              parent,
              "anon_XmSeparator_1",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_anon_xmseparator_1;
  function kivu_create_d( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    child_lists( 1 ) := kivu_create_anon_xmseparator_1( parent );
    child_lists( 2 ) := kivu_create_pane( parent );
    xtr5.setarg( args( 1 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateCascadeButton(
              parent,
              "d",
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
  end kivu_create_d;
  procedure kivu_post_bar( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_a( widgets( index ), widgets, index + 1 );
    kivu_post_b( widgets( index ), widgets, index + 3 );
    kivu_post_c( widgets( index ), widgets, index + 6 );
    kivu_post_d( widgets( index ), widgets, index + 7 );
    null;
  end kivu_post_bar;
  procedure kivu_post_pane( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_pane;
  procedure kivu_post_a( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    kivu_post_pane( widgets( index ), widgets, index + 1 );
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*pane";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nuserData, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_a;
  procedure kivu_post_other( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_other;
  procedure kivu_post_b( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 6 );
  begin
    kivu_post_pane( widgets( index ), widgets, index + 1 );
    kivu_post_other( widgets( index ), widgets, index + 2 );
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*bar";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nuserData, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_b;
  procedure kivu_post_c( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 6 );
  begin
    null;
  end kivu_post_c;
  procedure kivu_post_anon_xmseparator_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_anon_xmseparator_1;
  procedure kivu_post_d( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    kivu_post_anon_xmseparator_1( widgets( index ), widgets, index + 1 );
    kivu_post_pane( widgets( index ), widgets, index + 2 );
    null;
  end kivu_post_d;
end slots_uil;
