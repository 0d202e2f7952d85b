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
  function kivu_create_top( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_ok( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_ok( parent : in xtr5.widget;
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
    child_lists : array( 1 .. 5 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateMessageBox(
              parent,
              "top",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    if child_lists( 1 )( 1 ) /= XtR5.XtNULL then
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
    xtr5.addcallback( child_lists( 1 )( 1 ), Xmdef.NactivateCallback, m_cb_proc'address, 1 );
    declare
    args : xtr5.arglist( 1 .. 6 );
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      "red" &
      character'val(   0 );
    color_args_1 : xtr5.arglist( 1 .. 1 );
    color_colormap_1 : xlibr5.colormap;
    color_screen_rgb_1 : xlibr5.color;
    color_exact_rgb_1 : xlibr5.color;
    color_status_1 : boolean;
    string_2_1 : constant string :=
      "Yes" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
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
    icon_4 : xlibr5.pixmap;
    icon_strings_4 : xlibr5.stringlist( 1 .. 1 ) := (
        1 => new string'( "*" ) );
    icon_strlen_4 : constant integer := 1;
    icon_pixels_4 : xlibr5.pixellist( 1 .. 2 );
    icon_chars_4 : xlibr5.stringlist( 1 .. 2 ) := (
        new string'( " " ),
        new string'( "*" ) );
    icon_chrlen_4 : constant integer := 1;
    icon_depth_4 : xlibr5.int;
    icon_visual_4 : xlibr5.visual_ptr;
    icon_screen_4 : xlibr5.screen_ptr;
    icon_display_4 : xlibr5.display;
    icon_root_4 : xlibr5.window;
    icon_gc_4 : xlibr5.gc;
    icon_gcvalues_4 : xlibr5.gcvalues;
    icon_image_4 : xlibr5.image_ptr;
    icon_args_4 : xtr5.arglist( 1 .. 1 );
    icon_dummy_4 : xlibr5.int;
    icon_data_4 : xlibr5.unsignedcharlist_ptr;
    integer_5 : constant integer := 10;
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
    xtr5.setarg( args( 1 ), xmdef.nforeground, color_1 );
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 2 ), xmdef.nlabelString, compound_string_2 );
    XtR5.SetArg( color_args_3( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_3'address );
    XtR5.GetValues( child_lists( 1 )( 1 ), color_args_3, 1 );
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
    icon_pixels_4( 1 ) := color_1;
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
    icon_pixels_4( 2 ) := color_2;
    end;
    XtR5.SetArg( icon_args_4( 1 ),
                 Xmdef.Ndepth,
                 icon_depth_4'address );
    XtR5.GetValues( child_lists( 1 )( 1 ), icon_args_4, 1 );
    icon_display_4 := XtR5.DisplayOfObject( self );
    icon_screen_4  := XtR5.ScreenOfObject( self );
    icon_root_4    :=
      XlibR5.RootWindowOfScreen( icon_screen_4 );
    icon_visual_4  :=
      XlibR5.DefaultVisualOfScreen( icon_screen_4 );
    icon_image_4 :=
      XlibR5.CreateImage( icon_display_4,
                          icon_visual_4,
                          icon_depth_4,
                          xlibr5.zpixmap,
                          0,
                          xtr5.xtnull,
                          icon_strlen_4 / icon_chrlen_4,
                          icon_strings_4'length,
                          xlibr5.bitmappad( icon_display_4 ),
                          0 );
    icon_data_4 :=
      new xlibr5.unsignedcharlist(
        1 .. icon_image_4.height *
             icon_image_4.bytes_per_line );
    icon_image_4.data :=
      icon_data_4( icon_data_4'first )'address;
    for y in icon_strings_4'range loop
      for x in 1 .. icon_strlen_4 / icon_chrlen_4 loop
        for p in icon_chars_4'range loop
          if icon_chars_4( p ).all =
             icon_strings_4( y )
               ( ( x - 1 ) * icon_chrlen_4 + 1 ..
                 x * icon_chrlen_4 ) then
            icon_dummy_4 :=
              xlibr5.putpixel( icon_image_4, x - 1, y - 1,
                               icon_pixels_4( p ) );
            exit;
          end if;
        end loop;
      end loop;
    end loop;
    icon_4 := xlibr5.createpixmap( icon_display_4,
                               icon_root_4,
                               icon_image_4.width,
                               icon_image_4.height,
                               icon_image_4.depth );
    icon_gc_4 := xlibr5.creategc( icon_display_4,
                                   icon_root_4,
                                   0,
                                   icon_gcvalues_4 );
    xlibr5.putimage( icon_display_4,
                     icon_4,
                     icon_gc_4,
                     icon_image_4,
                     0, 0, 0, 0,
                     icon_image_4.width,
                     icon_image_4.height );
    xlibr5.freegc( icon_display_4, icon_gc_4 );
    xtr5.setarg( args( 4 ), xmdef.nlabelPixmap, icon_4 );
    xtr5.setarg( args( 5 ), xmdef.nwidth, integer_5 );
    XtR5.SetValues( child_lists( 1 )( 1 ), args, 5 );
    xm1_2_2.stringfree( compound_string_2 );
    icon_dummy_4 := xlibr5.destroyimage( icon_image_4 );
      null;
    end;
      null;
    end if;
    child_lists( 2 ) := kivu_create_ok( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 3 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_CANCEL_BUTTON );
    if child_lists( 3 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    string_1_1 : constant string :=
      "No" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    XtR5.SetValues( child_lists( 3 )( 1 ), args, 1 );
    xm1_2_2.stringfree( compound_string_1 );
      null;
    end;
      null;
    end if;
    child_lists( 4 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 4 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );
    child_lists( 5 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 5 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_Title" );
    if child_lists( 5 )( 1 ) /= XtR5.XtNULL then
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
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    if auto_child /= XtR5.XtNULL then
    widget_2 := xtr5.nametowidget( current_top_level,
                             widget_string_2 );
    xtr5.addcallback( auto_child, Xmdef.NactivateCallback, m_cb_proc'address, 2 );
    declare
    args : xtr5.arglist( 1 .. 6 );
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*ok";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ndefaultButton, widget_1 );
    XtR5.SetValues( auto_child, args, 1 );
      null;
    end;
      null;
    end if;
    kivu_post_ok( widgets( index ), widgets, index + 2 );
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_CANCEL_BUTTON );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_Title" );
    if auto_child /= XtR5.XtNULL then
    widget_3 := xtr5.nametowidget( current_top_level,
                             widget_string_3 );
    xtr5.addcallback( auto_child, Xmdef.NhelpCallback, m_cb_proc'address, 3 );
      null;
    end if;
    null;
  end kivu_post_top;
  procedure kivu_post_ok( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_ok;
end m_uil;
