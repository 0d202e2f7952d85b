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
  function kivu_create_w( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_w( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "w" then
      widgets := kivu_create_w( parent );
      kivu_post_w( parent, widgets, widgets'first );
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
  function kivu_create_w( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    self := Xm1_2_2.CreatePushButton(
              parent,
              "w",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
    xbitmapfile_1 : xlibr5.pixmap;
    xbitmapfile_file_1 : constant string := "gumby.xbm";
    xbitmapfile_args_1 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_1 : xlibr5.pixel;
    xbitmapfile_foreground_1 : xlibr5.pixel;
    xbitmapfile_depth_1 : xlibr5.int;
    arg_2 : constant string := "ownResource" & ASCII.NUL;
    xbitmapfile_2 : xlibr5.pixmap;
    xbitmapfile_file_2 : constant string := "/usr/include/X11/bitmaps/star";
    xbitmapfile_args_2 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_2 : xlibr5.pixel;
    xbitmapfile_foreground_2 : xlibr5.pixel;
    xbitmapfile_depth_2 : xlibr5.int;
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
    XtR5.GetValues( self, xbitmapfile_args_1, 3 );
    xbitmapfile_1 :=
      Xm1_2_2.GetPixmapByDepth( XtR5.ScreenOfObject( self ),
                                xbitmapfile_file_1,
                                xbitmapfile_foreground_1,
                                xbitmapfile_background_1,
                                xbitmapfile_depth_1 );
    xtr5.setarg( args( 1 ), xmdef.nlabelPixmap, xbitmapfile_1 );
    XtR5.SetArg( xbitmapfile_args_2( 1 ),
                 Xmdef.Nbackground,
                 xbitmapfile_background_2'address );
    XtR5.SetArg( xbitmapfile_args_2( 2 ),
                 Xmdef.Nforeground,
                 xbitmapfile_foreground_2'address );
    XtR5.SetArg( xbitmapfile_args_2( 3 ),
                 Xmdef.Ndepth,
                 xbitmapfile_depth_2'address );
    XtR5.GetValues( self, xbitmapfile_args_2, 3 );
    xbitmapfile_2 :=
      Xm1_2_2.GetPixmapByDepth( XtR5.ScreenOfObject( self ),
                                xbitmapfile_file_2,
                                xbitmapfile_foreground_2,
                                xbitmapfile_background_2,
                                xbitmapfile_depth_2 );
    xtr5.setarg( args( 2 ), arg_2, xbitmapfile_2 );
    XtR5.SetValues( self, args, 2 );
    end;
    XtR5.SetArg( xbitmapfile_args_1( 1 ),
                 Xmdef.Nbackground,
                 xbitmapfile_background_1'address );
    XtR5.SetArg( xbitmapfile_args_1( 2 ),
                 Xmdef.Nforeground,
                 xbitmapfile_foreground_1'address );
    XtR5.SetArg( xbitmapfile_args_1( 3 ),
                 Xmdef.Ndepth,
                 xbitmapfile_depth_1'address );
    XtR5.GetValues( self, xbitmapfile_args_1, 3 );
    xbitmapfile_1 :=
      Xm1_2_2.GetPixmapByDepth( XtR5.ScreenOfObject( self ),
                                xbitmapfile_file_1,
                                xbitmapfile_foreground_1,
                                xbitmapfile_background_1,
                                xbitmapfile_depth_1 );
    xtr5.addcallback( self, Xmdef.NactivateCallback, m_cb_proc'address, 1 );
    XtR5.SetArg( xbitmapfile_args_2( 1 ),
                 Xmdef.Nbackground,
                 xbitmapfile_background_2'address );
    XtR5.SetArg( xbitmapfile_args_2( 2 ),
                 Xmdef.Nforeground,
                 xbitmapfile_foreground_2'address );
    XtR5.SetArg( xbitmapfile_args_2( 3 ),
                 Xmdef.Ndepth,
                 xbitmapfile_depth_2'address );
    XtR5.GetValues( self, xbitmapfile_args_2, 3 );
    xbitmapfile_2 :=
      Xm1_2_2.GetPixmapByDepth( XtR5.ScreenOfObject( self ),
                                xbitmapfile_file_2,
                                xbitmapfile_foreground_2,
                                xbitmapfile_background_2,
                                xbitmapfile_depth_2 );
    xtr5.addcallback( self, Xmdef.NactivateCallback, m_cb_proc'address, 2 );
    XtR5.SetArg( xbitmapfile_args_3( 1 ),
                 Xmdef.Nbackground,
                 xbitmapfile_background_3'address );
    XtR5.SetArg( xbitmapfile_args_3( 2 ),
                 Xmdef.Nforeground,
                 xbitmapfile_foreground_3'address );
    XtR5.SetArg( xbitmapfile_args_3( 3 ),
                 Xmdef.Ndepth,
                 xbitmapfile_depth_3'address );
    XtR5.GetValues( self, xbitmapfile_args_3, 3 );
    xbitmapfile_3 :=
      Xm1_2_2.GetPixmapByDepth( XtR5.ScreenOfObject( self ),
                                xbitmapfile_file_3,
                                xbitmapfile_foreground_3,
                                xbitmapfile_background_3,
                                xbitmapfile_depth_3 );
    xtr5.addcallback( self, arg_3, m_cb_proc'address, 3 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_w;
  procedure kivu_post_w( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    null;
  end kivu_post_w;
end m_uil;
