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
    args : xtr5.arglist( 1 .. 12 );
  begin
    declare
    integer_1 : constant integer := 0;
    integer_2 : constant integer := 1;
    string_3_1 : constant string :=
      "x" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    integer_4 : constant integer := 2;
    integer_5 : constant integer := 2;
    integer_6 : constant integer := 3;
    integer_7 : constant integer := 1;
    string_8_1 : constant string :=
      "x" &
      character'val(   0 );
    compound_string_8 : xm1_2_2.xmstring;
    integer_9 : constant integer := 2;
    begin
    xtr5.setarg( args( 1 ), xmdef.nwidth, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nwidth, integer_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    xtr5.setarg( args( 4 ), xmdef.nwidth, integer_4 );
    xtr5.setarg( args( 5 ), xmdef.nwidth, integer_5 );
    xtr5.setarg( args( 6 ), xmdef.nwidth, integer_6 );
    xtr5.setarg( args( 7 ), xmdef.nwidth, integer_7 );
    compound_string_8 :=
      xm1_2_2.stringsegmentcreate( string_8_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 8 ), xmdef.nlabelString, compound_string_8 );
    xtr5.setarg( args( 9 ), xmdef.nwidth, integer_9 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              9 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    xm1_2_2.stringfree( compound_string_8 );
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
    color_2 : xlibr5.pixel;
    string_2 : constant string :=
      "red" &
      character'val(   0 );
    color_args_2 : xtr5.arglist( 1 .. 1 );
    color_colormap_2 : xlibr5.colormap;
    color_screen_rgb_2 : xlibr5.color;
    color_exact_rgb_2 : xlibr5.color;
    color_status_2 : boolean;
    color_3 : xlibr5.pixel;
    string_3 : constant string :=
      "red" &
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
    xtr5.setarg( args( 1 ), xmdef.nbackground, color_1 );
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
    xtr5.setarg( args( 2 ), xmdef.nbackground, color_2 );
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
    xtr5.setarg( args( 3 ), xmdef.nbackground, color_3 );
    XtR5.SetValues( self, args, 3 );
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
    args : xtr5.arglist( 1 .. 12 );
  begin
    null;
  end kivu_post_l;
end m_uil;
