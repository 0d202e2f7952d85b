with Xm;
with Xmdef;
with unchecked_deallocation;
with customs_client_data;
use  customs_client_data;
package body customs_uil is
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
  function kivu_create_panel( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_dial( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_anon_xmlabel_2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_anon_make_dial_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_panel( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_dial( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_xmlabel_2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_make_dial_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "panel" then
      widgets := kivu_create_panel( parent );
      kivu_post_panel( parent, widgets, widgets'first );
    elsif name = "dial" then
      widgets := kivu_create_dial( parent );
      kivu_post_dial( parent, widgets, widgets'first );
    elsif name = "dial" then
      widgets := kivu_create_dial( parent );
      kivu_post_dial( parent, widgets, widgets'first );
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
  function kivu_create_panel( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 4 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    integer_1 : constant integer := 10;
    arg_2 : constant string := "XmNspread" & ASCII.NUL;
    integer_2 : constant integer := 4;
    begin
    xtr5.setarg( args( 1 ), xmdef.nwidth, integer_1 );
    xtr5.setarg( args( 2 ), arg_2, integer_2 );
    self := make_row(
              parent,
              "panel",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
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
    xtr5.addcallback( self, Xmdef.NactivateCallback, customs_cb_proc'address, 1 );
    child_lists( 1 ) := kivu_create_dial( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_anon_make_dial_1( self );
    child_lists( 3 ) := kivu_create_dial( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 4 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 4 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_OK" );
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
  end kivu_create_panel;
  function kivu_create_dial( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := make_dial(
              parent,
              "dial",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NactivateCallback, customs_cb_proc'address, 2 );
    child_lists( 1 ) := kivu_create_anon_xmlabel_2( self );
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
  end kivu_create_dial;
  function kivu_create_anon_xmlabel_2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    self := Xm1_2_2.CreateLabelGadget(
              parent,
              "anon_XmLabel_2",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
    xbitmapfile_1 : xlibr5.pixmap;
    xbitmapfile_file_1 : constant string := "dial.xbm";
    xbitmapfile_args_1 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_1 : xlibr5.pixel;
    xbitmapfile_foreground_1 : xlibr5.pixel;
    xbitmapfile_depth_1 : xlibr5.int;
    begin
    XtR5.SetArg( xbitmapfile_args_1( 1 ),
                 Xmdef.Nbackground,
                 xbitmapfile_background_1'address );
    XtR5.SetArg( xbitmapfile_args_1( 2 ),
                 Xmdef.Nforeground,
                 xbitmapfile_foreground_1'address );
    XtR5.SetArg( xbitmapfile_args_1( 3 ),
                 Xmdef.Ndepth,
                 xbitmapfile_depth_1'address );
    XtR5.GetValues( parent, xbitmapfile_args_1, 3 );
    xbitmapfile_1 :=
      Xm1_2_2.GetPixmapByDepth( XtR5.ScreenOfObject( self ),
                                xbitmapfile_file_1,
                                xbitmapfile_foreground_1,
                                xbitmapfile_background_1,
                                xbitmapfile_depth_1 );
    xtr5.setarg( args( 1 ), xmdef.nlabelPixmap, xbitmapfile_1 );
    XtR5.SetValues( self, args, 1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_anon_xmlabel_2;
  function kivu_create_anon_make_dial_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    arg_1 : constant string := "XmNspread" & ASCII.NUL;
    integer_1 : constant integer := 5;
    begin
    xtr5.setarg( args( 1 ), arg_1, integer_1 );
    self := make_dial(
              parent,
              "anon_make_Dial_1",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_anon_make_dial_1;
  procedure kivu_post_panel( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*dial";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nworkWindow, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    kivu_post_dial( widgets( index ), widgets, index + 1 );
    kivu_post_anon_make_dial_1( widgets( index ), widgets, index + 3 );
    kivu_post_dial( widgets( index ), widgets, index + 4 );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_OK" );
    null;
  end kivu_post_panel;
  procedure kivu_post_dial( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_anon_xmlabel_2( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_dial;
  procedure kivu_post_anon_xmlabel_2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_anon_xmlabel_2;
  procedure kivu_post_anon_make_dial_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_anon_make_dial_1;
end customs_uil;
