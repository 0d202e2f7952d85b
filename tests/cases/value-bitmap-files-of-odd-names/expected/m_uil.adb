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
    args : xtr5.arglist( 1 .. 7 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
    xbitmapfile_1 : xlibr5.pixmap;
    xbitmapfile_file_1 : constant string := "";
    xbitmapfile_args_1 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_1 : xlibr5.pixel;
    xbitmapfile_foreground_1 : xlibr5.pixel;
    xbitmapfile_depth_1 : xlibr5.int;
    xbitmapfile_2 : xlibr5.pixmap;
    xbitmapfile_file_2 : constant string := "a/b.xbm";
    xbitmapfile_args_2 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_2 : xlibr5.pixel;
    xbitmapfile_foreground_2 : xlibr5.pixel;
    xbitmapfile_depth_2 : xlibr5.int;
    xbitmapfile_3 : xlibr5.pixmap;
    xbitmapfile_file_3 : constant string := "say "b"";
    xbitmapfile_args_3 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_3 : xlibr5.pixel;
    xbitmapfile_foreground_3 : xlibr5.pixel;
    xbitmapfile_depth_3 : xlibr5.int;
    xbitmapfile_4 : xlibr5.pixmap;
    xbitmapfile_file_4 : constant string := "b\xbm";
    xbitmapfile_args_4 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_4 : xlibr5.pixel;
    xbitmapfile_foreground_4 : xlibr5.pixel;
    xbitmapfile_depth_4 : xlibr5.int;
    xbitmapfile_5 : xlibr5.pixmap;
    xbitmapfile_file_5 : constant string := "~/b";
    xbitmapfile_args_5 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_5 : xlibr5.pixel;
    xbitmapfile_foreground_5 : xlibr5.pixel;
    xbitmapfile_depth_5 : xlibr5.int;
    xbitmapfile_6 : xlibr5.pixmap;
    xbitmapfile_file_6 : constant string := "b b";
    xbitmapfile_args_6 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_6 : xlibr5.pixel;
    xbitmapfile_foreground_6 : xlibr5.pixel;
    xbitmapfile_depth_6 : xlibr5.int;
    xbitmapfile_7 : xlibr5.pixmap;
    xbitmapfile_file_7 : constant string := " ";
    xbitmapfile_args_7 : xtr5.arglist( 1 .. 3 );
    xbitmapfile_background_7 : xlibr5.pixel;
    xbitmapfile_foreground_7 : xlibr5.pixel;
    xbitmapfile_depth_7 : xlibr5.int;
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
    xtr5.setarg( args( 2 ), xmdef.nlabelPixmap, xbitmapfile_2 );
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
    xtr5.setarg( args( 3 ), xmdef.nlabelPixmap, xbitmapfile_3 );
    XtR5.SetArg( xbitmapfile_args_4( 1 ),
                 Xmdef.Nbackground,
                 xbitmapfile_background_4'address );
    XtR5.SetArg( xbitmapfile_args_4( 2 ),
                 Xmdef.Nforeground,
                 xbitmapfile_foreground_4'address );
    XtR5.SetArg( xbitmapfile_args_4( 3 ),
                 Xmdef.Ndepth,
                 xbitmapfile_depth_4'address );
    XtR5.GetValues( self, xbitmapfile_args_4, 3 );
    xbitmapfile_4 :=
      Xm1_2_2.GetPixmapByDepth( XtR5.ScreenOfObject( self ),
                                xbitmapfile_file_4,
                                xbitmapfile_foreground_4,
                                xbitmapfile_background_4,
                                xbitmapfile_depth_4 );
    xtr5.setarg( args( 4 ), xmdef.nlabelPixmap, xbitmapfile_4 );
    XtR5.SetArg( xbitmapfile_args_5( 1 ),
                 Xmdef.Nbackground,
                 xbitmapfile_background_5'address );
    XtR5.SetArg( xbitmapfile_args_5( 2 ),
                 Xmdef.Nforeground,
                 xbitmapfile_foreground_5'address );
    XtR5.SetArg( xbitmapfile_args_5( 3 ),
                 Xmdef.Ndepth,
                 xbitmapfile_depth_5'address );
    XtR5.GetValues( self, xbitmapfile_args_5, 3 );
    xbitmapfile_5 :=
      Xm1_2_2.GetPixmapByDepth( XtR5.ScreenOfObject( self ),
                                xbitmapfile_file_5,
                                xbitmapfile_foreground_5,
                                xbitmapfile_background_5,
                                xbitmapfile_depth_5 );
    xtr5.setarg( args( 5 ), xmdef.nlabelPixmap, xbitmapfile_5 );
    XtR5.SetArg( xbitmapfile_args_6( 1 ),
                 Xmdef.Nbackground,
                 xbitmapfile_background_6'address );
    XtR5.SetArg( xbitmapfile_args_6( 2 ),
                 Xmdef.Nforeground,
                 xbitmapfile_foreground_6'address );
    XtR5.SetArg( xbitmapfile_args_6( 3 ),
                 Xmdef.Ndepth,
                 xbitmapfile_depth_6'address );
    XtR5.GetValues( self, xbitmapfile_args_6, 3 );
    xbitmapfile_6 :=
      Xm1_2_2.GetPixmapByDepth( XtR5.ScreenOfObject( self ),
                                xbitmapfile_file_6,
                                xbitmapfile_foreground_6,
                                xbitmapfile_background_6,
                                xbitmapfile_depth_6 );
    xtr5.setarg( args( 6 ), xmdef.nlabelPixmap, xbitmapfile_6 );
    XtR5.SetArg( xbitmapfile_args_7( 1 ),
                 Xmdef.Nbackground,
                 xbitmapfile_background_7'address );
    XtR5.SetArg( xbitmapfile_args_7( 2 ),
                 Xmdef.Nforeground,
                 xbitmapfile_foreground_7'address );
    XtR5.SetArg( xbitmapfile_args_7( 3 ),
                 Xmdef.Ndepth,
                 xbitmapfile_depth_7'address );
    XtR5.GetValues( self, xbitmapfile_args_7, 3 );
    xbitmapfile_7 :=
      Xm1_2_2.GetPixmapByDepth( XtR5.ScreenOfObject( self ),
                                xbitmapfile_file_7,
                                xbitmapfile_foreground_7,
                                xbitmapfile_background_7,
                                xbitmapfile_depth_7 );
    xtr5.setarg( args( 7 ), xmdef.nlabelPixmap, xbitmapfile_7 );
    XtR5.SetValues( self, args, 7 );
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
    args : xtr5.arglist( 1 .. 7 );
  begin
    null;
  end kivu_post_l;
end m_uil;
