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
  function kivu_create_bar( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_c1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_pd1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_c2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_pd2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_c3( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_bar( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_c1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_pd1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_c2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_pd2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_c3( parent : in xtr5.widget;
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
    elsif name = "c1" then
      widgets := kivu_create_c1( parent );
      kivu_post_c1( parent, widgets, widgets'first );
    elsif name = "c2" then
      widgets := kivu_create_c2( parent );
      kivu_post_c2( parent, widgets, widgets'first );
    elsif name = "c3" then
      widgets := kivu_create_c3( parent );
      kivu_post_c3( parent, widgets, widgets'first );
    elsif name = "pd1" then
      widgets := kivu_create_pd1( parent );
      kivu_post_pd1( parent, widgets, widgets'first );
    elsif name = "pd2" then
      widgets := kivu_create_pd2( parent );
      kivu_post_pd2( parent, widgets, widgets'first );
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
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    self := Xm1_2_2.CreateMenuBar(
              parent,
              "bar",
              args,
              0 );
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
      XtR5.SetArg( color_args_1( 1 ),
                   Xmdef.Nforeground,
                   color_1'address );
      XtR5.GetValues( self, color_args_1, 1 );
    end if;
    xtr5.setarg( args( 1 ), xmdef.nbackground, color_1 );
    XtR5.SetValues( self, args, 1 );
    end;
    child_lists( 1 ) := kivu_create_c1( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_c2( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_c3( self );
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
  end kivu_create_bar;
  function kivu_create_pd1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "pd1",
              args,
              0 );
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
      XtR5.SetArg( color_args_1( 1 ),
                   Xmdef.Nforeground,
                   color_1'address );
      XtR5.GetValues( self, color_args_1, 1 );
    end if;
    xtr5.setarg( args( 1 ), xmdef.nforeground, color_1 );
    XtR5.SetValues( self, args, 1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_pd1;
  function kivu_create_c1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    child_lists( 1 ) := kivu_create_pd1( parent );
    xtr5.setarg( args( 1 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateCascadeButtonGadget(
              parent,
              "c1",
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
    begin
    XtR5.SetArg( color_args_1( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_1'address );
    XtR5.GetValues( parent, color_args_1, 1 );
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
                   Xmdef.Nforeground,
                   color_1'address );
      XtR5.GetValues( parent, color_args_1, 1 );
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
    XtR5.GetValues( parent, color_args_1, 1 );
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
      XtR5.GetValues( parent, color_args_1, 1 );
    end if;
    icon_pixels_2( 1 ) := color_1;
    XtR5.SetArg( color_args_2( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_2'address );
    XtR5.GetValues( parent, color_args_2, 1 );
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
      XtR5.GetValues( parent, color_args_2, 1 );
    end if;
    icon_pixels_2( 2 ) := color_2;
    end;
    XtR5.SetArg( icon_args_2( 1 ),
                 Xmdef.Ndepth,
                 icon_depth_2'address );
    XtR5.GetValues( parent, icon_args_2, 1 );
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
    xtr5.setarg( args( 2 ), xmdef.ncascadePixmap, icon_2 );
    XtR5.SetValues( self, args, 2 );
    icon_dummy_2 := xlibr5.destroyimage( icon_image_2 );
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
  end kivu_create_c1;
  function kivu_create_c2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    self := Xm1_2_2.CreateCascadeButtonGadget(
              parent,
              "c2",
              args,
              0 );
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
      XtR5.SetArg( color_args_1( 1 ),
                   Xmdef.Nforeground,
                   color_1'address );
      XtR5.GetValues( self, color_args_1, 1 );
    end if;
    xtr5.setarg( args( 1 ), xmdef.nforeground, color_1 );
    XtR5.SetValues( self, args, 1 );
    end;
    child_lists( 1 ) := kivu_create_pd2( self );
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
  end kivu_create_c2;
  function kivu_create_pd2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "pd2",
              args,
              0 );
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
      XtR5.SetArg( color_args_1( 1 ),
                   Xmdef.Nforeground,
                   color_1'address );
      XtR5.GetValues( self, color_args_1, 1 );
    end if;
    xtr5.setarg( args( 1 ), xmdef.nbackground, color_1 );
    XtR5.SetValues( self, args, 1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_pd2;
  function kivu_create_c3( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    self := Xm1_2_2.CreateCascadeButtonGadgetGadget(
              parent,
              "c3",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
    xbitmapfile_1 : xlibr5.pixmap;
    xbitmapfile_file_1 : constant string := "b";
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
  end kivu_create_c3;
  procedure kivu_post_bar( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    kivu_post_c1( widgets( index ), widgets, index + 1 );
    kivu_post_c2( widgets( index ), widgets, index + 3 );
    kivu_post_c3( widgets( index ), widgets, index + 5 );
    null;
  end kivu_post_bar;
  procedure kivu_post_pd1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_pd1;
  procedure kivu_post_c1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    kivu_post_pd1( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_c1;
  procedure kivu_post_c2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    kivu_post_pd2( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_c2;
  procedure kivu_post_pd2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_pd2;
  procedure kivu_post_c3( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_c3;
end m_uil;
