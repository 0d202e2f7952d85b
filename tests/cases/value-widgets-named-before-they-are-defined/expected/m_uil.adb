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
  function kivu_create_mb( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_c( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_pm( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_one( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_box( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_mb2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_mb( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_c( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_pm( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_one( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_box( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_mb2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "mb" then
      widgets := kivu_create_mb( parent );
      kivu_post_mb( parent, widgets, widgets'first );
    elsif name = "box" then
      widgets := kivu_create_box( parent );
      kivu_post_box( parent, widgets, widgets'first );
    elsif name = "c" then
      widgets := kivu_create_c( parent );
      kivu_post_c( parent, widgets, widgets'first );
    elsif name = "pm" then
      widgets := kivu_create_pm( parent );
      kivu_post_pm( parent, widgets, widgets'first );
    elsif name = "one" then
      widgets := kivu_create_one( parent );
      kivu_post_one( parent, widgets, widgets'first );
    elsif name = "mb2" then
      widgets := kivu_create_mb2( parent );
      kivu_post_mb2( parent, widgets, widgets'first );
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
  function kivu_create_mb( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    self := Xm1_2_2.CreateMenuBar(
              parent,
              "mb",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_c( self );
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
  end kivu_create_mb;
  function kivu_create_pm( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "pm",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_one( self );
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
  end kivu_create_pm;
  function kivu_create_one( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    self := Xm1_2_2.CreatePushButton(
              parent,
              "one",
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
  function kivu_create_c( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 6 );
  begin
    child_lists( 1 ) := kivu_create_pm( parent );
    declare
    string_1_1 : constant string :=
      "File" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    integer_2 : constant integer := 1;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nwidth, integer_2 );
    xtr5.setarg( args( 3 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateCascadeButton(
              parent,
              "c",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
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
  end kivu_create_c;
  function kivu_create_box( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    self := Xm1_2_2.CreateMessageBox(
              parent,
              "box",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    if child_lists( 1 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 3 );
    integer_1 : constant integer := 5;
    begin
    xtr5.setarg( args( 1 ), xmdef.nwidth, integer_1 );
    XtR5.SetValues( child_lists( 1 )( 1 ), args, 1 );
      null;
    end;
      null;
    end if;
    child_lists( 2 ) := kivu_create_mb2( self );
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
  end kivu_create_box;
  function kivu_create_mb2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "mb2",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_mb2;
  procedure kivu_post_mb( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*c";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nmenuHelpWidget, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    kivu_post_c( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_mb;
  procedure kivu_post_pm( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*one";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nmenuHistory, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    kivu_post_one( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_pm;
  procedure kivu_post_one( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*mb";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nuserData, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_one;
  procedure kivu_post_c( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 6 );
  begin
    kivu_post_pm( widgets( index ), widgets, index + 1 );
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*c";
    widget_2 : xtr5.widget := xtr5.xtnull;
    widget_string_2 : constant string := "*pm";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nleftWidget, widget_1 );
    widget_2 := xtr5.nametowidget( current_top_level,
                             widget_string_2 );
    xtr5.setarg( args( 2 ), xmdef.nsubMenuId, widget_2 );
    XtR5.SetValues( widgets( index ), args, 2 );
    end;
    null;
  end kivu_post_c;
  procedure kivu_post_box( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*mb2";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ndefaultButton, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 3 );
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*mb2";
    widget_2 : xtr5.widget := xtr5.xtnull;
    widget_string_2 : constant string := "*box";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nrightWidget, widget_1 );
    widget_2 := xtr5.nametowidget( current_top_level,
                             widget_string_2 );
    xtr5.setarg( args( 2 ), xmdef.nleftWidget, widget_2 );
    XtR5.SetValues( auto_child, args, 2 );
      null;
    end;
      null;
    end if;
    kivu_post_mb2( widgets( index ), widgets, index + 2 );
    null;
  end kivu_post_box;
  procedure kivu_post_mb2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_mb2;
end m_uil;
