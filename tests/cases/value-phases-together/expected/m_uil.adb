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
  function kivu_create_ok( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_cancel( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_ok( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_cancel( parent : in xtr5.widget;
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
    elsif name = "ok" then
      widgets := kivu_create_ok( parent );
      kivu_post_ok( parent, widgets, widgets'first );
    elsif name = "cancel" then
      widgets := kivu_create_cancel( parent );
      kivu_post_cancel( parent, widgets, widgets'first );
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
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 9 );
  begin
    declare
    integer_1 : constant integer := 100;
    string_2_1 : constant string :=
      "Title" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    integer_3 : constant integer := 200;
    begin
    xtr5.setarg( args( 1 ), xmdef.nwidth, integer_1 );
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 2 ), xmdef.ndialogTitle, compound_string_2 );
    xtr5.setarg( args( 3 ), xmdef.nheight, integer_3 );
    self := Xm1_2_2.CreateBulletinBoard(
              parent,
              "top",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_2 );
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
    icon_2 : xlibr5.pixmap;
    icon_strings_2 : xlibr5.stringlist( 1 .. 1 ) := (
        1 => new string'( "*" ) );
    icon_strlen_2 : constant integer := 1;
    icon_pixels_2 : xlibr5.pixellist( 1 .. 2 );
    icon_chars_2 : xlibr5.stringlist( 1 .. 2 ) := (
        new string'( " " ),
        new string'( "*" ) );
    icon_chrlen_2 : constant integer := 1;
    icon_depth_2 : xlibr5.int;
    icon_visual_2 : xlibr5.visual_ptr;
    icon_screen_2 : xlibr5.screen_ptr;
    icon_display_2 : xlibr5.display;
    icon_root_2 : xlibr5.window;
    icon_gc_2 : xlibr5.gc;
    icon_gcvalues_2 : xlibr5.gcvalues;
    icon_image_2 : xlibr5.image_ptr;
    icon_args_2 : xtr5.arglist( 1 .. 1 );
    icon_dummy_2 : xlibr5.int;
    icon_data_2 : xlibr5.unsignedcharlist_ptr;
    arg_3 : constant string := "ownResource" & ASCII.NUL;
    color_3 : xlibr5.pixel;
    string_3 : constant string :=
      "#000000000000" &
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
    xtr5.setarg( args( 1 ), xmdef.nforeground, color_1 );
    declare
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      "" & character'val( 0 );
    color_args_1 : xtr5.arglist( 1 .. 1 );
    color_colormap_1 : xlibr5.colormap;
    color_screen_rgb_1 : xlibr5.color;
    color_exact_rgb_1 : xlibr5.color;
    color_status_1 : boolean;
    color_2 : xlibr5.pixel;
    string_2 : constant string :=
      "" & character'val( 0 );
    color_args_2 : xtr5.arglist( 1 .. 1 );
    color_colormap_2 : xlibr5.colormap;
    color_screen_rgb_2 : xlibr5.color;
    color_exact_rgb_2 : xlibr5.color;
    color_status_2 : boolean;
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
      XtR5.SetArg( color_args_1( 1 ),
                   Xmdef.Nbackground,
                   color_1'address );
      XtR5.GetValues( self, color_args_1, 1 );
    end if;
    icon_pixels_2( 1 ) := color_1;
    XtR5.SetArg( color_args_2( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_2'address );
    XtR5.GetValues( self, color_args_2, 1 );
    if string_2'length > 1 then
      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),
                              color_colormap_2,
                              string_2,
                              color_screen_rgb_2,
                              color_exact_rgb_2,
                              color_status_2 );
    else
      color_status_2 := false;
    end if;
    if color_status_2 then
      color_2 := color_screen_rgb_2.pixel;
    else
      XtR5.SetArg( color_args_2( 1 ),
                   Xmdef.Nforeground,
                   color_2'address );
      XtR5.GetValues( self, color_args_2, 1 );
    end if;
    icon_pixels_2( 2 ) := color_2;
    end;
    XtR5.SetArg( icon_args_2( 1 ),
                 Xmdef.Ndepth,
                 icon_depth_2'address );
    XtR5.GetValues( self, icon_args_2, 1 );
    icon_display_2 := XtR5.DisplayOfObject( self );
    icon_screen_2  := XtR5.ScreenOfObject( self );
    icon_root_2    :=
      XlibR5.RootWindowOfScreen( icon_screen_2 );
    icon_visual_2  :=
      XlibR5.DefaultVisualOfScreen( icon_screen_2 );
    icon_image_2 :=
      XlibR5.CreateImage( icon_display_2,
                          icon_visual_2,
                          icon_depth_2,
                          xlibr5.zpixmap,
                          0,
                          xtr5.xtnull,
                          icon_strlen_2 / icon_chrlen_2,
                          icon_strings_2'length,
                          xlibr5.bitmappad( icon_display_2 ),
                          0 );
    icon_data_2 :=
      new xlibr5.unsignedcharlist(
        1 .. icon_image_2.height *
             icon_image_2.bytes_per_line );
    icon_image_2.data :=
      icon_data_2( icon_data_2'first )'address;
    for y in icon_strings_2'range loop
      for x in 1 .. icon_strlen_2 / icon_chrlen_2 loop
        for p in icon_chars_2'range loop
          if icon_chars_2( p ).all =
             icon_strings_2( y )
               ( ( x - 1 ) * icon_chrlen_2 + 1 ..
                 x * icon_chrlen_2 ) then
            icon_dummy_2 :=
              xlibr5.putpixel( icon_image_2, x - 1, y - 1,
                               icon_pixels_2( p ) );
            exit;
          end if;
        end loop;
      end loop;
    end loop;
    icon_2 := xlibr5.createpixmap( icon_display_2,
                               icon_root_2,
                               icon_image_2.width,
                               icon_image_2.height,
                               icon_image_2.depth );
    icon_gc_2 := xlibr5.creategc( icon_display_2,
                                   icon_root_2,
                                   0,
                                   icon_gcvalues_2 );
    xlibr5.putimage( icon_display_2,
                     icon_2,
                     icon_gc_2,
                     icon_image_2,
                     0, 0, 0, 0,
                     icon_image_2.width,
                     icon_image_2.height );
    xlibr5.freegc( icon_display_2, icon_gc_2 );
    xtr5.setarg( args( 2 ), xmdef.nbackgroundPixmap, icon_2 );
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
    xtr5.setarg( args( 3 ), arg_3, color_3 );
    XtR5.SetValues( self, args, 3 );
    icon_dummy_2 := xlibr5.destroyimage( icon_image_2 );
    end;
    child_lists( 1 ) := kivu_create_ok( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_cancel( self );
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
  end kivu_create_top;
  function kivu_create_ok( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePushButton(
              parent,
              "ok",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_ok;
  function kivu_create_cancel( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePushButton(
              parent,
              "cancel",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_cancel;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 9 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*ok";
    arg_2 : constant string := "asideResource" & ASCII.NUL;
    widget_2 : xtr5.widget := xtr5.xtnull;
    widget_string_2 : constant string := "*cancel";
    widget_3 : xtr5.widget := xtr5.xtnull;
    widget_string_3 : constant string := "*cancel";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ndefaultButton, widget_1 );
    widget_2 := xtr5.nametowidget( current_top_level,
                             widget_string_2 );
    xtr5.setarg( args( 2 ), arg_2, widget_2 );
    widget_3 := xtr5.nametowidget( current_top_level,
                             widget_string_3 );
    xtr5.setarg( args( 3 ), xmdef.ncancelButton, widget_3 );
    XtR5.SetValues( widgets( index ), args, 3 );
    end;
    kivu_post_ok( widgets( index ), widgets, index + 1 );
    kivu_post_cancel( widgets( index ), widgets, index + 2 );
    null;
  end kivu_post_top;
  procedure kivu_post_ok( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_ok;
  procedure kivu_post_cancel( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_cancel;
end m_uil;
