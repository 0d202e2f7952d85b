with Xm;
with Xmdef;
with unchecked_deallocation;
with browser_client_data;
use  browser_client_data;
package body browser_uil is
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
  function kivu_create_browser_window( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_tool_bar( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_up_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_reload_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_anon_xmseparator_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_folder_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_file_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_foot( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_order_option( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_order_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_by_name_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_by_size_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_by_date_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_zoom_scale( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_panes( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_folder_pane( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_folder_title( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_folder_list( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_file_pane( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_file_title( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_file_list( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_browser_window( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_tool_bar( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_up_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_reload_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_xmseparator_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_folder_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_file_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_foot( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_order_option( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_order_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_by_name_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_by_size_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_by_date_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_zoom_scale( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_panes( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_folder_pane( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_folder_title( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_folder_list( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_file_pane( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_file_title( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_file_list( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "browser_window" then
      widgets := kivu_create_browser_window( parent );
      kivu_post_browser_window( parent, widgets, widgets'first );
    elsif name = "tool_bar" then
      widgets := kivu_create_tool_bar( parent );
      kivu_post_tool_bar( parent, widgets, widgets'first );
    elsif name = "foot" then
      widgets := kivu_create_foot( parent );
      kivu_post_foot( parent, widgets, widgets'first );
    elsif name = "panes" then
      widgets := kivu_create_panes( parent );
      kivu_post_panes( parent, widgets, widgets'first );
    elsif name = "up_button" then
      widgets := kivu_create_up_button( parent );
      kivu_post_up_button( parent, widgets, widgets'first );
    elsif name = "reload_button" then
      widgets := kivu_create_reload_button( parent );
      kivu_post_reload_button( parent, widgets, widgets'first );
    elsif name = "folder_button" then
      widgets := kivu_create_folder_button( parent );
      kivu_post_folder_button( parent, widgets, widgets'first );
    elsif name = "file_button" then
      widgets := kivu_create_file_button( parent );
      kivu_post_file_button( parent, widgets, widgets'first );
    elsif name = "order_option" then
      widgets := kivu_create_order_option( parent );
      kivu_post_order_option( parent, widgets, widgets'first );
    elsif name = "zoom_scale" then
      widgets := kivu_create_zoom_scale( parent );
      kivu_post_zoom_scale( parent, widgets, widgets'first );
    elsif name = "order_menu" then
      widgets := kivu_create_order_menu( parent );
      kivu_post_order_menu( parent, widgets, widgets'first );
    elsif name = "by_name_item" then
      widgets := kivu_create_by_name_item( parent );
      kivu_post_by_name_item( parent, widgets, widgets'first );
    elsif name = "by_size_item" then
      widgets := kivu_create_by_size_item( parent );
      kivu_post_by_size_item( parent, widgets, widgets'first );
    elsif name = "by_date_item" then
      widgets := kivu_create_by_date_item( parent );
      kivu_post_by_date_item( parent, widgets, widgets'first );
    elsif name = "folder_pane" then
      widgets := kivu_create_folder_pane( parent );
      kivu_post_folder_pane( parent, widgets, widgets'first );
    elsif name = "file_pane" then
      widgets := kivu_create_file_pane( parent );
      kivu_post_file_pane( parent, widgets, widgets'first );
    elsif name = "folder_title" then
      widgets := kivu_create_folder_title( parent );
      kivu_post_folder_title( parent, widgets, widgets'first );
    elsif name = "folder_list" then
      widgets := kivu_create_folder_list( parent );
      kivu_post_folder_list( parent, widgets, widgets'first );
    elsif name = "file_title" then
      widgets := kivu_create_file_title( parent );
      kivu_post_file_title( parent, widgets, widgets'first );
    elsif name = "file_list" then
      widgets := kivu_create_file_list( parent );
      kivu_post_file_list( parent, widgets, widgets'first );
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
  function kivu_create_browser_window( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "browser_window",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_tool_bar( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_foot( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_panes( self );
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
  end kivu_create_browser_window;
  function kivu_create_tool_bar( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 5 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 6 );
  begin
    declare
    integer_1 : constant integer := 2;
    integer_2 : constant integer := 1;
    integer_3 : constant integer := 4;
    integer_4 : constant integer := 1;
    integer_5 : constant integer := 1;
    integer_6 : constant integer := 1;
    begin
    xtr5.setarg( args( 1 ), xmdef.norientation, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.npacking, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.nspacing, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.ntopAttachment, integer_4 );
    xtr5.setarg( args( 5 ), xmdef.nleftAttachment, integer_5 );
    xtr5.setarg( args( 6 ), xmdef.nrightAttachment, integer_6 );
    self := Xm1_2_2.CreateRowColumn(
              parent,
              "tool_bar",
              args,
              6 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_up_button( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_reload_button( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_anon_xmseparator_1( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 4 ) := kivu_create_folder_button( self );
    xtr5.managechild( child_lists( 4 )( 1 ) );
    child_lists( 5 ) := kivu_create_file_button( self );
    xtr5.managechild( child_lists( 5 )( 1 ) );
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
  end kivu_create_tool_bar;
  function kivu_create_up_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    integer_1 : constant integer := 1;
    begin
    xtr5.setarg( args( 1 ), xmdef.nlabelType, integer_1 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "up_button",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
    icon_1 : xlibr5.pixmap;
    icon_strings_1 : xlibr5.stringlist( 1 .. 11 ) := (
        1 => new string'( "       **       " ),
        2 => new string'( "      ****      " ),
        3 => new string'( "     ******     " ),
        4 => new string'( "    ********    " ),
        5 => new string'( "   **********   " ),
        6 => new string'( "      ****      " ),
        7 => new string'( "      ****      " ),
        8 => new string'( "      ****      " ),
        9 => new string'( "      ****      " ),
        10 => new string'( "      ****      " ),
        11 => new string'( "                " ) );
    icon_strlen_1 : constant integer := 16;
    icon_pixels_1 : xlibr5.pixellist( 1 .. 2 );
    icon_chars_1 : xlibr5.stringlist( 1 .. 2 ) := (
        new string'( " " ),
        new string'( "*" ) );
    icon_chrlen_1 : constant integer := 1;
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
    begin
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
    xtr5.setarg( args( 1 ), xmdef.nlabelPixmap, icon_1 );
    XtR5.SetValues( self, args, 1 );
    icon_dummy_1 := xlibr5.destroyimage( icon_image_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, browser_cb_proc'address, 1 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_up_button;
  function kivu_create_reload_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    integer_1 : constant integer := 1;
    begin
    xtr5.setarg( args( 1 ), xmdef.nlabelType, integer_1 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "reload_button",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
    icon_1 : xlibr5.pixmap;
    icon_strings_1 : xlibr5.stringlist( 1 .. 11 ) := (
        1 => new string'( "      ggggg  g  " ),
        2 => new string'( "    gg     ggg  " ),
        3 => new string'( "   g       gggg " ),
        4 => new string'( "  g       ggggg " ),
        5 => new string'( "  g             " ),
        6 => new string'( "  g             " ),
        7 => new string'( "  g             " ),
        8 => new string'( "  g          g  " ),
        9 => new string'( "   g        g   " ),
        10 => new string'( "    gg    gg    " ),
        11 => new string'( "      gggg      " ) );
    icon_strlen_1 : constant integer := 16;
    icon_pixels_1 : xlibr5.pixellist( 1 .. 5 );
    icon_chars_1 : xlibr5.stringlist( 1 .. 5 ) := (
      1 => new string'( " " ),
      2 => new string'( "#" ),
      3 => new string'( "o" ),
      4 => new string'( "." ),
      5 => new string'( "g" ) );
    icon_chrlen_1 : constant integer := 1;
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
    begin
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
    color_3 : xlibr5.pixel;
    string_3 : constant string :=
      "goldenrod" &
      character'val(   0 );
    color_args_3 : xtr5.arglist( 1 .. 1 );
    color_colormap_3 : xlibr5.colormap;
    color_screen_rgb_3 : xlibr5.color;
    color_exact_rgb_3 : xlibr5.color;
    color_status_3 : boolean;
    color_4 : xlibr5.pixel;
    string_4 : constant string :=
      "white" &
      character'val(   0 );
    color_args_4 : xtr5.arglist( 1 .. 1 );
    color_colormap_4 : xlibr5.colormap;
    color_screen_rgb_4 : xlibr5.color;
    color_exact_rgb_4 : xlibr5.color;
    color_status_4 : boolean;
    color_5 : xlibr5.pixel;
    string_5 : constant string :=
      "#000080800000" &
      character'val(   0 );
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
      XtR5.SetArg( color_args_2( 1 ),
                   Xmdef.Nforeground,
                   color_2'address );
      XtR5.GetValues( self, color_args_2, 1 );
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
      color_3 := xlibr5.pixel( 0 );
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
    XtR5.SetValues( self, args, 1 );
    icon_dummy_1 := xlibr5.destroyimage( icon_image_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, browser_cb_proc'address, 2 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_reload_button;
  function kivu_create_anon_xmseparator_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    integer_1 : constant integer := 1;
    begin
    xtr5.setarg( args( 1 ), xmdef.norientation, integer_1 );
    self := Xm1_2_2.CreateSeparatorGadget(
              parent,
              "anon_XmSeparator_1",
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
  end kivu_create_anon_xmseparator_1;
  function kivu_create_folder_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    integer_1 : constant integer := 1;
    begin
    xtr5.setarg( args( 1 ), xmdef.nlabelType, integer_1 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "folder_button",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
    icon_1 : xlibr5.pixmap;
    icon_strings_1 : xlibr5.stringlist( 1 .. 11 ) := (
        1 => new string'( "                " ),
        2 => new string'( "  #####         " ),
        3 => new string'( " #ooooo#        " ),
        4 => new string'( " #ooooo######## " ),
        5 => new string'( " #oooooooooooo# " ),
        6 => new string'( " #oooooooooooo# " ),
        7 => new string'( " #oooooooooooo# " ),
        8 => new string'( " #oooooooooooo# " ),
        9 => new string'( " #oooooooooooo# " ),
        10 => new string'( " ############## " ),
        11 => new string'( "                " ) );
    icon_strlen_1 : constant integer := 16;
    icon_pixels_1 : xlibr5.pixellist( 1 .. 5 );
    icon_chars_1 : xlibr5.stringlist( 1 .. 5 ) := (
      1 => new string'( " " ),
      2 => new string'( "#" ),
      3 => new string'( "o" ),
      4 => new string'( "." ),
      5 => new string'( "g" ) );
    icon_chrlen_1 : constant integer := 1;
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
    begin
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
    color_3 : xlibr5.pixel;
    string_3 : constant string :=
      "goldenrod" &
      character'val(   0 );
    color_args_3 : xtr5.arglist( 1 .. 1 );
    color_colormap_3 : xlibr5.colormap;
    color_screen_rgb_3 : xlibr5.color;
    color_exact_rgb_3 : xlibr5.color;
    color_status_3 : boolean;
    color_4 : xlibr5.pixel;
    string_4 : constant string :=
      "white" &
      character'val(   0 );
    color_args_4 : xtr5.arglist( 1 .. 1 );
    color_colormap_4 : xlibr5.colormap;
    color_screen_rgb_4 : xlibr5.color;
    color_exact_rgb_4 : xlibr5.color;
    color_status_4 : boolean;
    color_5 : xlibr5.pixel;
    string_5 : constant string :=
      "#000080800000" &
      character'val(   0 );
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
      XtR5.SetArg( color_args_2( 1 ),
                   Xmdef.Nforeground,
                   color_2'address );
      XtR5.GetValues( self, color_args_2, 1 );
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
      color_3 := xlibr5.pixel( 0 );
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
    XtR5.SetValues( self, args, 1 );
    icon_dummy_1 := xlibr5.destroyimage( icon_image_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, browser_cb_proc'address, 3 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_folder_button;
  function kivu_create_file_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    integer_1 : constant integer := 1;
    begin
    xtr5.setarg( args( 1 ), xmdef.nlabelType, integer_1 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "file_button",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
    icon_1 : xlibr5.pixmap;
    icon_strings_1 : xlibr5.stringlist( 1 .. 11 ) := (
        1 => new string'( "   ########     " ),
        2 => new string'( "   #......##    " ),
        3 => new string'( "   #......#.#   " ),
        4 => new string'( "   #......####  " ),
        5 => new string'( "   #.........#  " ),
        6 => new string'( "   #.#######.#  " ),
        7 => new string'( "   #.........#  " ),
        8 => new string'( "   #.#####...#  " ),
        9 => new string'( "   #.........#  " ),
        10 => new string'( "   ###########  " ),
        11 => new string'( "                " ) );
    icon_strlen_1 : constant integer := 16;
    icon_pixels_1 : xlibr5.pixellist( 1 .. 5 );
    icon_chars_1 : xlibr5.stringlist( 1 .. 5 ) := (
      1 => new string'( " " ),
      2 => new string'( "#" ),
      3 => new string'( "o" ),
      4 => new string'( "." ),
      5 => new string'( "g" ) );
    icon_chrlen_1 : constant integer := 1;
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
    begin
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
    color_3 : xlibr5.pixel;
    string_3 : constant string :=
      "goldenrod" &
      character'val(   0 );
    color_args_3 : xtr5.arglist( 1 .. 1 );
    color_colormap_3 : xlibr5.colormap;
    color_screen_rgb_3 : xlibr5.color;
    color_exact_rgb_3 : xlibr5.color;
    color_status_3 : boolean;
    color_4 : xlibr5.pixel;
    string_4 : constant string :=
      "white" &
      character'val(   0 );
    color_args_4 : xtr5.arglist( 1 .. 1 );
    color_colormap_4 : xlibr5.colormap;
    color_screen_rgb_4 : xlibr5.color;
    color_exact_rgb_4 : xlibr5.color;
    color_status_4 : boolean;
    color_5 : xlibr5.pixel;
    string_5 : constant string :=
      "#000080800000" &
      character'val(   0 );
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
      XtR5.SetArg( color_args_2( 1 ),
                   Xmdef.Nforeground,
                   color_2'address );
      XtR5.GetValues( self, color_args_2, 1 );
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
      color_3 := xlibr5.pixel( 0 );
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
    XtR5.SetValues( self, args, 1 );
    icon_dummy_1 := xlibr5.destroyimage( icon_image_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, browser_cb_proc'address, 4 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_file_button;
  function kivu_create_foot( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 5 );
  begin
    declare
    integer_1 : constant integer := 2;
    integer_2 : constant integer := 1;
    integer_3 : constant integer := 1;
    integer_4 : constant integer := 1;
    begin
    xtr5.setarg( args( 1 ), xmdef.norientation, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nbottomAttachment, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.nleftAttachment, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nrightAttachment, integer_4 );
    self := Xm1_2_2.CreateRowColumn(
              parent,
              "foot",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      "#ccccccccdddd" &
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
    child_lists( 1 ) := kivu_create_order_option( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_zoom_scale( self );
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
  end kivu_create_foot;
  function kivu_create_order_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "order_menu",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_by_name_item( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_by_size_item( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_by_date_item( self );
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
  end kivu_create_order_menu;
  function kivu_create_by_name_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "Name" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "by_name_item",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, browser_cb_proc'address, 5 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_by_name_item;
  function kivu_create_by_size_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "Size" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "by_size_item",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, browser_cb_proc'address, 6 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_by_size_item;
  function kivu_create_by_date_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "Date" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "by_date_item",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, browser_cb_proc'address, 7 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_by_date_item;
  function kivu_create_order_option( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    child_lists( 1 ) := kivu_create_order_menu( parent );
    declare
    string_1_1 : constant string :=
      "Order:" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'O' ) );
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    xtr5.setarg( args( 3 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateOptionMenu(
              parent,
              "order_option",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
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
  end kivu_create_order_option;
  function kivu_create_zoom_scale( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 9 );
  begin
    declare
    string_1_1 : constant string :=
      "Preview" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    integer_2 : constant integer := 2;
    integer_3 : constant integer := 3;
    integer_4 : constant integer := 5;
    integer_5 : constant integer := 40;
    integer_6 : constant integer := 10;
    integer_7 : constant integer := 1;
    integer_8 : constant integer := 5;
    boolean_9 : constant boolean := true;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.ntitleString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.norientation, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.nprocessingDirection, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nminimum, integer_4 );
    xtr5.setarg( args( 5 ), xmdef.nmaximum, integer_5 );
    xtr5.setarg( args( 6 ), xmdef.nvalue, integer_6 );
    xtr5.setarg( args( 7 ), xmdef.ndecimalPoints, integer_7 );
    xtr5.setarg( args( 8 ), xmdef.nscaleMultiple, integer_8 );
    xtr5.setarg( args( 9 ), xmdef.nshowValue, boolean_9 );
    self := Xm1_2_2.CreateScale(
              parent,
              "zoom_scale",
              args,
              9 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NdragCallback, browser_cb_proc'address, 8 );
    xtr5.addcallback( self, Xmdef.NvalueChangedCallback, browser_cb_proc'address, 9 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_zoom_scale;
  function kivu_create_panes( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 9 );
  begin
    declare
    integer_1 : constant integer := -10;
    integer_2 : constant integer := 4;
    integer_3 : constant integer := 4;
    integer_4 : constant integer := 3;
    integer_5 : constant integer := 3;
    integer_6 : constant integer := 1;
    integer_7 : constant integer := 1;
    begin
    xtr5.setarg( args( 1 ), xmdef.nsashIndent, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nmarginWidth, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.nmarginHeight, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.ntopAttachment, integer_4 );
    xtr5.setarg( args( 5 ), xmdef.nbottomAttachment, integer_5 );
    xtr5.setarg( args( 6 ), xmdef.nleftAttachment, integer_6 );
    xtr5.setarg( args( 7 ), xmdef.nrightAttachment, integer_7 );
    self := Xm1_2_2.CreatePanedWindow(
              parent,
              "panes",
              args,
              7 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_folder_pane( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_file_pane( self );
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
  end kivu_create_panes;
  function kivu_create_folder_pane( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    integer_1 : constant integer := 60;
    begin
    xtr5.setarg( args( 1 ), xmdef.npaneMinimum, integer_1 );
    self := Xm1_2_2.CreateFrame(
              parent,
              "folder_pane",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_folder_title( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_folder_list( self );
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
  end kivu_create_folder_pane;
  function kivu_create_folder_title( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    string_1_1 : constant string :=
      "Folders" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    font_table_2 : xm1_2_2.fontlist;
    font_table_entry_2_1 : xm1_2_2.fontlistentry;
    font_table_tag_2_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    integer_3 : constant integer := 2;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "-*-helvetica-bold-r-normal--14-*-*-*-*-*-iso8859-1" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_2_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_2_1,
        xm.font_is_font,
        font_1 );
    end;
    font_table_2 := xtr5.xtnull;
    font_table_2 :=
      xm1_2_2.fontlistappendentry(
        font_table_2,
        font_table_entry_2_1 );
    xtr5.free( font_table_entry_2_1 );
    xtr5.setarg( args( 2 ), xmdef.nfontList, font_table_2 );
    xtr5.setarg( args( 3 ), xmdef.nchildType, integer_3 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "folder_title",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_folder_title;
  function kivu_create_folder_list( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 10 );
  begin
    declare
    compound_string_table_1 : xm1_2_2.xmstringlist( 1 .. 5 ) := ( others => xtr5.xtnull );
    compound_string_table_3 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    integer_5 : constant integer := 3;
    integer_6 : constant integer := 6;
    integer_7 : constant integer := 1;
    font_table_8 : xm1_2_2.fontlist;
    font_table_entry_8_1 : xm1_2_2.fontlistentry;
    font_table_tag_8_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    font_table_entry_8_2 : xm1_2_2.fontlistentry;
    font_table_tag_8_2 : constant string := "iso_latin2";
    begin
    declare
    string_1_1 : constant string :=
      ".." &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "Documents" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    string_3_1 : constant string :=
      "Pictures" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    string_4_1 : constant string :=
      "Programs" &
      character'val(   0 );
    compound_string_4 : xm1_2_2.xmstring;
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
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_1( 3 ) := compound_string_3;
    compound_string_4 :=
      xm1_2_2.stringsegmentcreate( string_4_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_1( 4 ) := compound_string_4;
    end;
    xtr5.setarg( args( 1 ), xmdef.nitems, compound_string_table_1( compound_string_table_1'first )'address );
    xtr5.setarg( args( 2 ), xmdef.nitemCount, xtr5.argval( compound_string_table_1'length - 1 ) );
    declare
    string_1_1 : constant string :=
      ".." &
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
    xtr5.setarg( args( 5 ), xmdef.nselectionPolicy, integer_5 );
    xtr5.setarg( args( 6 ), xmdef.nvisibleItemCount, integer_6 );
    xtr5.setarg( args( 7 ), xmdef.nlistSizePolicy, integer_7 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "-*-courier-medium-r-normal--12-*-*-*-*-*-iso8859-1" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    font_2 : xlibr5.fontstruct_ptr;
    font_string_2 : constant string :=
      "-*-courier-medium-r-normal--12-*-*-*-*-*-iso8859-1" &
      character'val(   0 );
    font_display_2 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_8_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_8_1,
        xm.font_is_font,
        font_1 );
    font_display_2 := XtR5.DisplayOfObject( parent );
    font_2 := xlibr5.loadqueryfont( font_display_2,
                                font_string_2 );
    font_table_entry_8_2 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_8_2,
        xm.font_is_font,
        font_2 );
    end;
    font_table_8 := xtr5.xtnull;
    font_table_8 :=
      xm1_2_2.fontlistappendentry(
        font_table_8,
        font_table_entry_8_1 );
    xtr5.free( font_table_entry_8_1 );
    font_table_8 :=
      xm1_2_2.fontlistappendentry(
        font_table_8,
        font_table_entry_8_2 );
    xtr5.free( font_table_entry_8_2 );
    xtr5.setarg( args( 8 ), xmdef.nfontList, font_table_8 );
    self := Xm1_2_2.CreateScrolledList(
              parent,
              "folder_list",
              args,
              8 );
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
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      "black" &
      character'val(   0 );
    color_args_1 : xtr5.arglist( 1 .. 1 );
    color_colormap_1 : xlibr5.colormap;
    color_screen_rgb_1 : xlibr5.color;
    color_exact_rgb_1 : xlibr5.color;
    color_status_1 : boolean;
    color_2 : xlibr5.pixel;
    string_2 : constant string :=
      "light yellow" &
      character'val(   0 );
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
                   Xmdef.Nforeground,
                   color_1'address );
      XtR5.GetValues( self, color_args_1, 1 );
    end if;
    xtr5.setarg( args( 1 ), xmdef.nforeground, color_1 );
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
                   Xmdef.Nbackground,
                   color_2'address );
      XtR5.GetValues( self, color_args_2, 1 );
    end if;
    xtr5.setarg( args( 2 ), xmdef.nbackground, color_2 );
    XtR5.SetValues( self, args, 2 );
    end;
    xtr5.addcallback( self, Xmdef.NbrowseSelectionCallback, browser_cb_proc'address, 10 );
    xtr5.addcallback( self, Xmdef.NdefaultActionCallback, browser_cb_proc'address, 11 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_folder_list;
  function kivu_create_file_pane( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    integer_1 : constant integer := 100;
    begin
    xtr5.setarg( args( 1 ), xmdef.npaneMinimum, integer_1 );
    self := Xm1_2_2.CreateFrame(
              parent,
              "file_pane",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_file_title( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_file_list( self );
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
  end kivu_create_file_pane;
  function kivu_create_file_title( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    string_1_1 : constant string :=
      "Files" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    font_table_2 : xm1_2_2.fontlist;
    font_table_entry_2_1 : xm1_2_2.fontlistentry;
    font_table_tag_2_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    integer_3 : constant integer := 2;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "-*-helvetica-bold-r-normal--14-*-*-*-*-*-iso8859-1" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_2_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_2_1,
        xm.font_is_font,
        font_1 );
    end;
    font_table_2 := xtr5.xtnull;
    font_table_2 :=
      xm1_2_2.fontlistappendentry(
        font_table_2,
        font_table_entry_2_1 );
    xtr5.free( font_table_entry_2_1 );
    xtr5.setarg( args( 2 ), xmdef.nfontList, font_table_2 );
    xtr5.setarg( args( 3 ), xmdef.nchildType, integer_3 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "file_title",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_file_title;
  function kivu_create_file_list( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 9 );
  begin
    declare
    compound_string_table_1 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    integer_3 : constant integer := 2;
    integer_4 : constant integer := 12;
    integer_5 : constant integer := 1;
    integer_6 : constant integer := 0;
    font_table_7 : xm1_2_2.fontlist;
    font_table_entry_7_1 : xm1_2_2.fontlistentry;
    font_table_tag_7_1 : constant string :=
        Xmdef.FONTLIST_DEFAULT_TAG;
    font_table_entry_7_2 : xm1_2_2.fontlistentry;
    font_table_tag_7_2 : constant string := "iso_latin2";
    begin
    declare
    string_1_1 : constant string :=
      "(no folder chosen)" &
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
    xtr5.setarg( args( 3 ), xmdef.nselectionPolicy, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nvisibleItemCount, integer_4 );
    xtr5.setarg( args( 5 ), xmdef.nlistSizePolicy, integer_5 );
    xtr5.setarg( args( 6 ), xmdef.nscrollBarDisplayPolicy, integer_6 );
    declare
    font_1 : xlibr5.fontstruct_ptr;
    font_string_1 : constant string :=
      "-*-courier-medium-r-normal--12-*-*-*-*-*-iso8859-1" &
      character'val(   0 );
    font_display_1 : xlibr5.display;
    font_2 : xlibr5.fontstruct_ptr;
    font_string_2 : constant string :=
      "-*-courier-medium-r-normal--12-*-*-*-*-*-iso8859-1" &
      character'val(   0 );
    font_display_2 : xlibr5.display;
    begin
    font_display_1 := XtR5.DisplayOfObject( parent );
    font_1 := xlibr5.loadqueryfont( font_display_1,
                                font_string_1 );
    font_table_entry_7_1 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_7_1,
        xm.font_is_font,
        font_1 );
    font_display_2 := XtR5.DisplayOfObject( parent );
    font_2 := xlibr5.loadqueryfont( font_display_2,
                                font_string_2 );
    font_table_entry_7_2 :=
      xm1_2_2.fontlistentrycreate(
        font_table_tag_7_2,
        xm.font_is_font,
        font_2 );
    end;
    font_table_7 := xtr5.xtnull;
    font_table_7 :=
      xm1_2_2.fontlistappendentry(
        font_table_7,
        font_table_entry_7_1 );
    xtr5.free( font_table_entry_7_1 );
    font_table_7 :=
      xm1_2_2.fontlistappendentry(
        font_table_7,
        font_table_entry_7_2 );
    xtr5.free( font_table_entry_7_2 );
    xtr5.setarg( args( 7 ), xmdef.nfontList, font_table_7 );
    self := Xm1_2_2.CreateScrolledList(
              parent,
              "file_list",
              args,
              7 );
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
      "black" &
      character'val(   0 );
    color_args_1 : xtr5.arglist( 1 .. 1 );
    color_colormap_1 : xlibr5.colormap;
    color_screen_rgb_1 : xlibr5.color;
    color_exact_rgb_1 : xlibr5.color;
    color_status_1 : boolean;
    color_2 : xlibr5.pixel;
    string_2 : constant string :=
      "light yellow" &
      character'val(   0 );
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
                   Xmdef.Nforeground,
                   color_1'address );
      XtR5.GetValues( self, color_args_1, 1 );
    end if;
    xtr5.setarg( args( 1 ), xmdef.nforeground, color_1 );
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
                   Xmdef.Nbackground,
                   color_2'address );
      XtR5.GetValues( self, color_args_2, 1 );
    end if;
    xtr5.setarg( args( 2 ), xmdef.nbackground, color_2 );
    XtR5.SetValues( self, args, 2 );
    end;
    xtr5.addcallback( self, Xmdef.NextendedSelectionCallback, browser_cb_proc'address, 12 );
    xtr5.addcallback( self, Xmdef.NdefaultActionCallback, browser_cb_proc'address, 13 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_file_list;
  procedure kivu_post_browser_window( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_tool_bar( widgets( index ), widgets, index + 1 );
    kivu_post_foot( widgets( index ), widgets, index + 7 );
    kivu_post_panes( widgets( index ), widgets, index + 14 );
    null;
  end kivu_post_browser_window;
  procedure kivu_post_tool_bar( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 6 );
  begin
    kivu_post_up_button( widgets( index ), widgets, index + 1 );
    kivu_post_reload_button( widgets( index ), widgets, index + 2 );
    kivu_post_anon_xmseparator_1( widgets( index ), widgets, index + 3 );
    kivu_post_folder_button( widgets( index ), widgets, index + 4 );
    kivu_post_file_button( widgets( index ), widgets, index + 5 );
    null;
  end kivu_post_tool_bar;
  procedure kivu_post_up_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    null;
  end kivu_post_up_button;
  procedure kivu_post_reload_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    null;
  end kivu_post_reload_button;
  procedure kivu_post_anon_xmseparator_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_anon_xmseparator_1;
  procedure kivu_post_folder_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    null;
  end kivu_post_folder_button;
  procedure kivu_post_file_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    null;
  end kivu_post_file_button;
  procedure kivu_post_foot( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 5 );
  begin
    kivu_post_order_option( widgets( index ), widgets, index + 1 );
    kivu_post_zoom_scale( widgets( index ), widgets, index + 6 );
    null;
  end kivu_post_foot;
  procedure kivu_post_order_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_by_name_item( widgets( index ), widgets, index + 1 );
    kivu_post_by_size_item( widgets( index ), widgets, index + 2 );
    kivu_post_by_date_item( widgets( index ), widgets, index + 3 );
    null;
  end kivu_post_order_menu;
  procedure kivu_post_by_name_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_by_name_item;
  procedure kivu_post_by_size_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_by_size_item;
  procedure kivu_post_by_date_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_by_date_item;
  procedure kivu_post_order_option( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    kivu_post_order_menu( widgets( index ), widgets, index + 1 );
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*by_name_item";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nmenuHistory, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_order_option;
  procedure kivu_post_zoom_scale( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 9 );
  begin
    null;
  end kivu_post_zoom_scale;
  procedure kivu_post_panes( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 9 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*tool_bar";
    widget_2 : xtr5.widget := xtr5.xtnull;
    widget_string_2 : constant string := "*foot";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ntopWidget, widget_1 );
    widget_2 := xtr5.nametowidget( current_top_level,
                             widget_string_2 );
    xtr5.setarg( args( 2 ), xmdef.nbottomWidget, widget_2 );
    XtR5.SetValues( widgets( index ), args, 2 );
    end;
    kivu_post_folder_pane( widgets( index ), widgets, index + 1 );
    kivu_post_file_pane( widgets( index ), widgets, index + 4 );
    null;
  end kivu_post_panes;
  procedure kivu_post_folder_pane( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    kivu_post_folder_title( widgets( index ), widgets, index + 1 );
    kivu_post_folder_list( widgets( index ), widgets, index + 2 );
    null;
  end kivu_post_folder_pane;
  procedure kivu_post_folder_title( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_folder_title;
  procedure kivu_post_folder_list( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 10 );
  begin
    null;
  end kivu_post_folder_list;
  procedure kivu_post_file_pane( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    kivu_post_file_title( widgets( index ), widgets, index + 1 );
    kivu_post_file_list( widgets( index ), widgets, index + 2 );
    null;
  end kivu_post_file_pane;
  procedure kivu_post_file_title( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_file_title;
  procedure kivu_post_file_list( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 9 );
  begin
    null;
  end kivu_post_file_list;
end browser_uil;
