with Xm;
with Xmdef;
with unchecked_deallocation;
with m_client_data;
use  m_client_data;
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
  function kivu_create_box( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_f( parent : in xtr5.widget;
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
    if name = "f" then
      widgets := kivu_create_f( parent );
      kivu_post_f( parent, widgets, widgets'first );
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
  function kivu_create_f( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
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
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_f;
  function kivu_create_box( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateSelectionBox(
              parent,
              "box",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
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
      XtR5.SetArg( color_args_2( 1 ),
                   Xmdef.Nforeground,
                   color_2'address );
      XtR5.GetValues( self, color_args_2, 1 );
    end if;
    icon_pixels_1( 2 ) := color_2;
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
    xtr5.addcallback( self, Xmdef.NokCallback, m_cb_proc'address, 1 );
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      Xm1_2_2.SelectionBoxGetChild( self, Xm1_2_2.DIALOG_APPLY_BUTTON );
    if child_lists( 1 )( 1 ) /= XtR5.XtNULL then
    XtR5.SetArg( color_args_2( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_2'address );
    XtR5.GetValues( child_lists( 1 )( 1 ), color_args_2, 1 );
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
                   Xmdef.Nbackground,
                   color_2'address );
      XtR5.GetValues( child_lists( 1 )( 1 ), color_args_2, 1 );
    end if;
    xtr5.addcallback( child_lists( 1 )( 1 ), Xmdef.NactivateCallback, m_cb_proc'address, 2 );
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
    XtR5.GetValues( child_lists( 1 )( 1 ), color_args_1, 1 );
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
      XtR5.GetValues( child_lists( 1 )( 1 ), color_args_1, 1 );
    end if;
    icon_pixels_3( 1 ) := color_1;
    XtR5.SetArg( color_args_2( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_2'address );
    XtR5.GetValues( child_lists( 1 )( 1 ), color_args_2, 1 );
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
      XtR5.GetValues( child_lists( 1 )( 1 ), color_args_2, 1 );
    end if;
    icon_pixels_3( 2 ) := color_2;
    end;
    XtR5.SetArg( icon_args_3( 1 ),
                 Xmdef.Ndepth,
                 icon_depth_3'address );
    XtR5.GetValues( child_lists( 1 )( 1 ), icon_args_3, 1 );
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
    xtr5.addcallback( child_lists( 1 )( 1 ), Xmdef.NactivateCallback, m_cb_proc'address, 3 );
    declare
    args : xtr5.arglist( 1 .. 1 );
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      "blue" &
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
    XtR5.GetValues( child_lists( 1 )( 1 ), color_args_1, 1 );
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
    XtR5.SetValues( child_lists( 1 )( 1 ), args, 1 );
      null;
    end;
      null;
    end if;
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      Xm1_2_2.SelectionBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );
    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then
    XtR5.SetArg( xbitmapfile_args_5( 1 ),
                 Xmdef.Nbackground,
                 xbitmapfile_background_5'address );
    XtR5.SetArg( xbitmapfile_args_5( 2 ),
                 Xmdef.Nforeground,
                 xbitmapfile_foreground_5'address );
    XtR5.SetArg( xbitmapfile_args_5( 3 ),
                 Xmdef.Ndepth,
                 xbitmapfile_depth_5'address );
    XtR5.GetValues( child_lists( 2 )( 1 ), xbitmapfile_args_5, 3 );
    xbitmapfile_5 :=
      Xm1_2_2.GetPixmapByDepth( XtR5.ScreenOfObject( self ),
                                xbitmapfile_file_5,
                                xbitmapfile_foreground_5,
                                xbitmapfile_background_5,
                                xbitmapfile_depth_5 );
    xtr5.addcallback( child_lists( 2 )( 1 ), Xmdef.NarmCallback, m_cb_proc'address, 5 );
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
  procedure kivu_post_f( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_f;
  procedure kivu_post_box( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    auto_child :=
      Xm1_2_2.SelectionBoxGetChild( self, Xm1_2_2.DIALOG_APPLY_BUTTON );
    if auto_child /= XtR5.XtNULL then
    widget_4 := xtr5.nametowidget( current_top_level,
                             widget_string_4 );
    xtr5.addcallback( auto_child, Xmdef.NactivateCallback, m_cb_proc'address, 4 );
    declare
    args : xtr5.arglist( 1 .. 1 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    auto_child :=
      Xm1_2_2.SelectionBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );
    if auto_child /= XtR5.XtNULL then
      null;
    end if;
    null;
  end kivu_post_box;
end m_uil;
