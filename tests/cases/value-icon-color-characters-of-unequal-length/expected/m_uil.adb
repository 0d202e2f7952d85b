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
  function kivu_create_l( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_l( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "l" then
      widgets := kivu_create_l( parent );
      kivu_post_l( parent, widgets, widgets'first );
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
  function kivu_create_l( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
    icon_1 : xlibr5.pixmap;
    icon_strings_1 : xlibr5.stringlist( 1 .. 2 ) := (
        1 => new string'( "ababc" ),
        2 => new string'( "x" ) );
    icon_strlen_1 : constant integer := 5;
    icon_pixels_1 : xlibr5.pixellist( 1 .. 5 );
    icon_chars_1 : xlibr5.stringlist( 1 .. 5 ) := (
      1 => new string'( "ab" ),
      2 => new string'( "" ),
      3 => new string'( "c" ),
      4 => new string'( "   " ),
      5 => new string'( "x" ) );
    icon_chrlen_1 : constant integer := 3;
    icon_depth_1 : xlibr5.int;
    icon_visual_1 : xlibr5.visual_ptr;
    icon_screen_1 : xlibr5.screen_ptr;
    icon_display_1 : xlibr5.display;
    icon_root_1 : xlibr5.window;
    icon_gc_1 : xlibr5.gc;
    icon_gcvalues_1 : xlibr5.gcvalues;
    icon_image_1 : xlibr5.image_ptr;
    icon_args_1 : xtr5.arglist( 1 .. 1 );
    icon_dummy_1 : xlibr5.int;
    icon_data_1 : xlibr5.unsignedcharlist_ptr;
    icon_2 : xlibr5.pixmap;
    icon_strings_2 : xlibr5.stringlist( 1 .. 1 ) := (
        1 => new string'( "a" ) );
    icon_strlen_2 : constant integer := 1;
    icon_pixels_2 : xlibr5.pixellist( 1 .. 2 );
    icon_chars_2 : xlibr5.stringlist( 1 .. 2 ) := (
      1 => new string'( "" ),
      2 => new string'( "" ) );
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
    icon_3 : xlibr5.pixmap;
    icon_strings_3 : xlibr5.stringlist( 1 .. 1 ) := (
        1 => new string'( "*" ) );
    icon_strlen_3 : constant integer := 1;
    icon_pixels_3 : xlibr5.pixellist( 1 .. 1 );
    icon_chars_3 : xlibr5.stringlist( 1 .. 1 ) := (
      1 => new string'( "*" ) );
    icon_chrlen_3 : constant integer := 1;
    icon_depth_3 : xlibr5.int;
    icon_visual_3 : xlibr5.visual_ptr;
    icon_screen_3 : xlibr5.screen_ptr;
    icon_display_3 : xlibr5.display;
    icon_root_3 : xlibr5.window;
    icon_gc_3 : xlibr5.gc;
    icon_gcvalues_3 : xlibr5.gcvalues;
    icon_image_3 : xlibr5.image_ptr;
    icon_args_3 : xtr5.arglist( 1 .. 1 );
    icon_dummy_3 : xlibr5.int;
    icon_data_3 : xlibr5.unsignedcharlist_ptr;
    begin
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
    color_2 : xlibr5.pixel;
    string_2 : constant string :=
      "#000100020003" &
      character'val(   0 );
    color_args_2 : xtr5.arglist( 1 .. 1 );
    color_colormap_2 : xlibr5.colormap;
    color_screen_rgb_2 : xlibr5.color;
    color_exact_rgb_2 : xlibr5.color;
    color_status_2 : boolean;
    color_3 : xlibr5.pixel;
    string_3 : constant string :=
      "" & character'val( 0 );
    color_args_3 : xtr5.arglist( 1 .. 1 );
    color_colormap_3 : xlibr5.colormap;
    color_screen_rgb_3 : xlibr5.color;
    color_exact_rgb_3 : xlibr5.color;
    color_status_3 : boolean;
    color_4 : xlibr5.pixel;
    string_4 : constant string :=
      "" & character'val( 0 );
    color_args_4 : xtr5.arglist( 1 .. 1 );
    color_colormap_4 : xlibr5.colormap;
    color_screen_rgb_4 : xlibr5.color;
    color_exact_rgb_4 : xlibr5.color;
    color_status_4 : boolean;
    color_5 : xlibr5.pixel;
    string_5 : constant string :=
      "" & character'val( 0 );
    color_args_5 : xtr5.arglist( 1 .. 1 );
    color_colormap_5 : xlibr5.colormap;
    color_screen_rgb_5 : xlibr5.color;
    color_exact_rgb_5 : xlibr5.color;
    color_status_5 : boolean;
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
    icon_pixels_1( 1 ) := color_1;
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
      color_2 := xlibr5.pixel( 0 );
    end if;
    icon_pixels_1( 2 ) := color_2;
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
      XtR5.SetArg( color_args_3( 1 ),
                   Xmdef.Nforeground,
                   color_3'address );
      XtR5.GetValues( self, color_args_3, 1 );
    end if;
    icon_pixels_1( 3 ) := color_3;
    XtR5.SetArg( color_args_4( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_4'address );
    XtR5.GetValues( self, color_args_4, 1 );
    if string_4'length > 1 then
      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),
                              color_colormap_4,
                              string_4,
                              color_screen_rgb_4,
                              color_exact_rgb_4,
                              color_status_4 );
    else
      color_status_4 := false;
    end if;
    if color_status_4 then
      color_4 := color_screen_rgb_4.pixel;
    else
      XtR5.SetArg( color_args_4( 1 ),
                   Xmdef.Nbackground,
                   color_4'address );
      XtR5.GetValues( self, color_args_4, 1 );
    end if;
    icon_pixels_1( 4 ) := color_4;
    XtR5.SetArg( color_args_5( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_5'address );
    XtR5.GetValues( self, color_args_5, 1 );
    if string_5'length > 1 then
      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),
                              color_colormap_5,
                              string_5,
                              color_screen_rgb_5,
                              color_exact_rgb_5,
                              color_status_5 );
    else
      color_status_5 := false;
    end if;
    if color_status_5 then
      color_5 := color_screen_rgb_5.pixel;
    else
      color_5 := xlibr5.pixel( 0 );
    end if;
    icon_pixels_1( 5 ) := color_5;
    end;
    XtR5.SetArg( icon_args_1( 1 ),
                 Xmdef.Ndepth,
                 icon_depth_1'address );
    XtR5.GetValues( self, icon_args_1, 1 );
    icon_display_1 := XtR5.DisplayOfObject( self );
    icon_screen_1  := XtR5.ScreenOfObject( self );
    icon_root_1    :=
      XlibR5.RootWindowOfScreen( icon_screen_1 );
    icon_visual_1  :=
      XlibR5.DefaultVisualOfScreen( icon_screen_1 );
    icon_image_1 :=
      XlibR5.CreateImage( icon_display_1,
                          icon_visual_1,
                          icon_depth_1,
                          xlibr5.zpixmap,
                          0,
                          xtr5.xtnull,
                          icon_strlen_1 / icon_chrlen_1,
                          icon_strings_1'length,
                          xlibr5.bitmappad( icon_display_1 ),
                          0 );
    icon_data_1 :=
      new xlibr5.unsignedcharlist(
        1 .. icon_image_1.height *
             icon_image_1.bytes_per_line );
    icon_image_1.data :=
      icon_data_1( icon_data_1'first )'address;
    for y in icon_strings_1'range loop
      for x in 1 .. icon_strlen_1 / icon_chrlen_1 loop
        for p in icon_chars_1'range loop
          if icon_chars_1( p ).all =
             icon_strings_1( y )
               ( ( x - 1 ) * icon_chrlen_1 + 1 ..
                 x * icon_chrlen_1 ) then
            icon_dummy_1 :=
              xlibr5.putpixel( icon_image_1, x - 1, y - 1,
                               icon_pixels_1( p ) );
            exit;
          end if;
        end loop;
      end loop;
    end loop;
    icon_1 := xlibr5.createpixmap( icon_display_1,
                               icon_root_1,
                               icon_image_1.width,
                               icon_image_1.height,
                               icon_image_1.depth );
    icon_gc_1 := xlibr5.creategc( icon_display_1,
                                   icon_root_1,
                                   0,
                                   icon_gcvalues_1 );
    xlibr5.putimage( icon_display_1,
                     icon_1,
                     icon_gc_1,
                     icon_image_1,
                     0, 0, 0, 0,
                     icon_image_1.width,
                     icon_image_1.height );
    xlibr5.freegc( icon_display_1, icon_gc_1 );
    xtr5.setarg( args( 1 ), xmdef.nlabelPixmap, icon_1 );
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
    xtr5.setarg( args( 2 ), xmdef.nlabelPixmap, icon_2 );
    declare
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      "#ffff00000000" &
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
    icon_pixels_3( 1 ) := color_1;
    end;
    XtR5.SetArg( icon_args_3( 1 ),
                 Xmdef.Ndepth,
                 icon_depth_3'address );
    XtR5.GetValues( self, icon_args_3, 1 );
    icon_display_3 := XtR5.DisplayOfObject( self );
    icon_screen_3  := XtR5.ScreenOfObject( self );
    icon_root_3    :=
      XlibR5.RootWindowOfScreen( icon_screen_3 );
    icon_visual_3  :=
      XlibR5.DefaultVisualOfScreen( icon_screen_3 );
    icon_image_3 :=
      XlibR5.CreateImage( icon_display_3,
                          icon_visual_3,
                          icon_depth_3,
                          xlibr5.zpixmap,
                          0,
                          xtr5.xtnull,
                          icon_strlen_3 / icon_chrlen_3,
                          icon_strings_3'length,
                          xlibr5.bitmappad( icon_display_3 ),
                          0 );
    icon_data_3 :=
      new xlibr5.unsignedcharlist(
        1 .. icon_image_3.height *
             icon_image_3.bytes_per_line );
    icon_image_3.data :=
      icon_data_3( icon_data_3'first )'address;
    for y in icon_strings_3'range loop
      for x in 1 .. icon_strlen_3 / icon_chrlen_3 loop
        for p in icon_chars_3'range loop
          if icon_chars_3( p ).all =
             icon_strings_3( y )
               ( ( x - 1 ) * icon_chrlen_3 + 1 ..
                 x * icon_chrlen_3 ) then
            icon_dummy_3 :=
              xlibr5.putpixel( icon_image_3, x - 1, y - 1,
                               icon_pixels_3( p ) );
            exit;
          end if;
        end loop;
      end loop;
    end loop;
    icon_3 := xlibr5.createpixmap( icon_display_3,
                               icon_root_3,
                               icon_image_3.width,
                               icon_image_3.height,
                               icon_image_3.depth );
    icon_gc_3 := xlibr5.creategc( icon_display_3,
                                   icon_root_3,
                                   0,
                                   icon_gcvalues_3 );
    xlibr5.putimage( icon_display_3,
                     icon_3,
                     icon_gc_3,
                     icon_image_3,
                     0, 0, 0, 0,
                     icon_image_3.width,
                     icon_image_3.height );
    xlibr5.freegc( icon_display_3, icon_gc_3 );
    xtr5.setarg( args( 3 ), xmdef.nlabelPixmap, icon_3 );
    XtR5.SetValues( self, args, 3 );
    icon_dummy_1 := xlibr5.destroyimage( icon_image_1 );
    icon_dummy_2 := xlibr5.destroyimage( icon_image_2 );
    icon_dummy_3 := xlibr5.destroyimage( icon_image_3 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_l;
  procedure kivu_post_l( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_l;
end m_uil;
