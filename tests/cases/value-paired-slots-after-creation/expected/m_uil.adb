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
  function kivu_create_f( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_om( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_pd( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_l2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_f( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_om( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_pd( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_l2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "f" then
      widgets := kivu_create_f( parent );
      kivu_post_f( parent, widgets, widgets'first );
    elsif name = "om" then
      widgets := kivu_create_om( parent );
      kivu_post_om( parent, widgets, widgets'first );
    elsif name = "l2" then
      widgets := kivu_create_l2( parent );
      kivu_post_l2( parent, widgets, widgets'first );
    elsif name = "pd" then
      widgets := kivu_create_pd( parent );
      kivu_post_pd( parent, widgets, widgets'first );
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
  function kivu_create_f( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "f",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_om( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_l2( self );
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
  end kivu_create_f;
  function kivu_create_pd( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "pd",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_pd;
  function kivu_create_om( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    child_lists( 1 ) := kivu_create_pd( parent );
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_OptionLabel" );
    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 3 );
    arg_1 : constant string := "XmNitems" & ASCII.NUL;
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      "blue" &
      character'val(   0 );
    color_args_1 : xtr5.arglist( 1 .. 1 );
    color_colormap_1 : xlibr5.colormap;
    color_screen_rgb_1 : xlibr5.color;
    color_exact_rgb_1 : xlibr5.color;
    color_status_1 : boolean;
    color_3 : xlibr5.pixel;
    string_3 : constant string :=
      "red" &
      character'val(   0 );
    color_args_3 : xtr5.arglist( 1 .. 1 );
    color_colormap_3 : xlibr5.colormap;
    color_screen_rgb_3 : xlibr5.color;
    color_exact_rgb_3 : xlibr5.color;
    color_status_3 : boolean;
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
    xtr5.setarg( args( 1 ), arg_1, color_1 );
    XtR5.SetArg( color_args_3( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_3'address );
    XtR5.GetValues( self, color_args_3, 1 );
    if string_3'length > 1 then
      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),
                              color_colormap_3,
                              string_3,
                              color_screen_rgb_3,
                              color_exact_rgb_3,
                              color_status_3 );
    else
      color_status_3 := false;
    end if;
    if color_status_3 then
      color_3 := color_screen_rgb_3.pixel;
    else
      color_3 := xlibr5.pixel( 0 );
    end if;
    xtr5.setarg( args( 3 ), xmdef.nbackground, color_3 );
    XtR5.SetValues( child_lists( 2 )( 1 ), args, 3 );
      null;
    end;
      null;
    end if;
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
    xtr5.setarg( args( 1 ), xmdef.nitems, compound_string_table_1( compound_string_table_1'first )'address );
    xtr5.setarg( args( 2 ), xmdef.nitemCount, xtr5.argval( compound_string_table_1'length - 1 ) );
    xtr5.setarg( args( 3 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateOptionMenu(
              parent,
              "om",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    for index_1 in compound_string_table_1'range loop
      if compound_string_table_1( index_1 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_1( index_1 ) );
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
  end kivu_create_om;
  function kivu_create_l2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 6 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "l2",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
    arg_1 : constant string := "XmNitems" & ASCII.NUL;
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      "blue" &
      character'val(   0 );
    color_args_1 : xtr5.arglist( 1 .. 1 );
    color_colormap_1 : xlibr5.colormap;
    color_screen_rgb_1 : xlibr5.color;
    color_exact_rgb_1 : xlibr5.color;
    color_status_1 : boolean;
    color_3 : xlibr5.pixel;
    string_3 : constant string :=
      "red" &
      character'val(   0 );
    color_args_3 : xtr5.arglist( 1 .. 1 );
    color_colormap_3 : xlibr5.colormap;
    color_screen_rgb_3 : xlibr5.color;
    color_exact_rgb_3 : xlibr5.color;
    color_status_3 : boolean;
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
    xtr5.setarg( args( 1 ), arg_1, color_1 );
    XtR5.SetArg( color_args_3( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_3'address );
    XtR5.GetValues( self, color_args_3, 1 );
    if string_3'length > 1 then
      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),
                              color_colormap_3,
                              string_3,
                              color_screen_rgb_3,
                              color_exact_rgb_3,
                              color_status_3 );
    else
      color_status_3 := false;
    end if;
    if color_status_3 then
      color_3 := color_screen_rgb_3.pixel;
    else
      color_3 := xlibr5.pixel( 0 );
    end if;
    xtr5.setarg( args( 3 ), xmdef.nbackground, color_3 );
    XtR5.SetValues( self, args, 3 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_l2;
  procedure kivu_post_f( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_om( widgets( index ), widgets, index + 1 );
    kivu_post_l2( widgets( index ), widgets, index + 4 );
    null;
  end kivu_post_f;
  procedure kivu_post_pd( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_pd;
  procedure kivu_post_om( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    kivu_post_pd( widgets( index ), widgets, index + 1 );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_OptionLabel" );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 3 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    null;
  end kivu_post_om;
  procedure kivu_post_l2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 6 );
  begin
    declare
    arg_1 : constant string := "XmNlistItems" & ASCII.NUL;
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*om";
    widget_3 : xtr5.widget := xtr5.xtnull;
    widget_string_3 : constant string := "*l2";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), arg_1, widget_1 );
    widget_3 := xtr5.nametowidget( current_top_level,
                             widget_string_3 );
    xtr5.setarg( args( 3 ), xmdef.nleftWidget, widget_3 );
    XtR5.SetValues( widgets( index ), args, 3 );
    end;
    null;
  end kivu_post_l2;
end m_uil;
