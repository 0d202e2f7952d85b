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
    args : xtr5.arglist( 1 .. 11 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
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
      "#000000000000" &
      character'val(   0 );
    color_args_5 : xtr5.arglist( 1 .. 1 );
    color_colormap_5 : xlibr5.colormap;
    color_screen_rgb_5 : xlibr5.color;
    color_exact_rgb_5 : xlibr5.color;
    color_status_5 : boolean;
    color_6 : xlibr5.pixel;
    string_6 : constant string :=
      "#ffff00010001" &
      character'val(   0 );
    color_args_6 : xtr5.arglist( 1 .. 1 );
    color_colormap_6 : xlibr5.colormap;
    color_screen_rgb_6 : xlibr5.color;
    color_exact_rgb_6 : xlibr5.color;
    color_status_6 : boolean;
    color_7 : xlibr5.pixel;
    string_7 : constant string :=
      "say ""red""" &
      character'val(   0 );
    color_args_7 : xtr5.arglist( 1 .. 1 );
    color_colormap_7 : xlibr5.colormap;
    color_screen_rgb_7 : xlibr5.color;
    color_exact_rgb_7 : xlibr5.color;
    color_status_7 : boolean;
    color_8 : xlibr5.pixel;
    string_8 : constant string :=
      "#abc" &
      character'val(   0 );
    color_args_8 : xtr5.arglist( 1 .. 1 );
    color_colormap_8 : xlibr5.colormap;
    color_screen_rgb_8 : xlibr5.color;
    color_exact_rgb_8 : xlibr5.color;
    color_status_8 : boolean;
    color_9 : xlibr5.pixel;
    string_9 : constant string :=
      "light blue" &
      character'val(   0 );
    color_args_9 : xtr5.arglist( 1 .. 1 );
    color_colormap_9 : xlibr5.colormap;
    color_screen_rgb_9 : xlibr5.color;
    color_exact_rgb_9 : xlibr5.color;
    color_status_9 : boolean;
    color_10 : xlibr5.pixel;
    string_10 : constant string :=
      "m" &
      character'val(   0 );
    color_args_10 : xtr5.arglist( 1 .. 1 );
    color_colormap_10 : xlibr5.colormap;
    color_screen_rgb_10 : xlibr5.color;
    color_exact_rgb_10 : xlibr5.color;
    color_status_10 : boolean;
    color_11 : xlibr5.pixel;
    string_11 : constant string :=
      "#7fff7fff7fff" &
      character'val(   0 );
    color_args_11 : xtr5.arglist( 1 .. 1 );
    color_colormap_11 : xlibr5.colormap;
    color_screen_rgb_11 : xlibr5.color;
    color_exact_rgb_11 : xlibr5.color;
    color_status_11 : boolean;
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
    xtr5.setarg( args( 2 ), xmdef.nforeground, color_2 );
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
                   Xmdef.Nbackground,
                   color_3'address );
      XtR5.GetValues( self, color_args_3, 1 );
    end if;
    xtr5.setarg( args( 3 ), xmdef.nborderColor, color_3 );
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
      color_4 := xlibr5.pixel( 0 );
    end if;
    xtr5.setarg( args( 4 ), xmdef.nuserData, color_4 );
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
    xtr5.setarg( args( 5 ), xmdef.nbackground, color_5 );
    XtR5.SetArg( color_args_6( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_6'address );
    XtR5.GetValues( self, color_args_6, 1 );
    if string_6'length > 1 then
      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),
                              color_colormap_6,
                              string_6,
                              color_screen_rgb_6,
                              color_exact_rgb_6,
                              color_status_6 );
    else
      color_status_6 := false;
    end if;
    if color_status_6 then
      color_6 := color_screen_rgb_6.pixel;
    else
      color_6 := xlibr5.pixel( 0 );
    end if;
    xtr5.setarg( args( 6 ), xmdef.nforeground, color_6 );
    XtR5.SetArg( color_args_7( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_7'address );
    XtR5.GetValues( self, color_args_7, 1 );
    if string_7'length > 1 then
      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),
                              color_colormap_7,
                              string_7,
                              color_screen_rgb_7,
                              color_exact_rgb_7,
                              color_status_7 );
    else
      color_status_7 := false;
    end if;
    if color_status_7 then
      color_7 := color_screen_rgb_7.pixel;
    else
      XtR5.SetArg( color_args_7( 1 ),
                   Xmdef.Nbackground,
                   color_7'address );
      XtR5.GetValues( self, color_args_7, 1 );
    end if;
    xtr5.setarg( args( 7 ), xmdef.nborderColor, color_7 );
    XtR5.SetArg( color_args_8( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_8'address );
    XtR5.GetValues( self, color_args_8, 1 );
    if string_8'length > 1 then
      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),
                              color_colormap_8,
                              string_8,
                              color_screen_rgb_8,
                              color_exact_rgb_8,
                              color_status_8 );
    else
      color_status_8 := false;
    end if;
    if color_status_8 then
      color_8 := color_screen_rgb_8.pixel;
    else
      color_8 := xlibr5.pixel( 0 );
    end if;
    xtr5.setarg( args( 8 ), xmdef.nuserData, color_8 );
    XtR5.SetArg( color_args_9( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_9'address );
    XtR5.GetValues( self, color_args_9, 1 );
    if string_9'length > 1 then
      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),
                              color_colormap_9,
                              string_9,
                              color_screen_rgb_9,
                              color_exact_rgb_9,
                              color_status_9 );
    else
      color_status_9 := false;
    end if;
    if color_status_9 then
      color_9 := color_screen_rgb_9.pixel;
    else
      color_9 := xlibr5.pixel( 0 );
    end if;
    xtr5.setarg( args( 9 ), xmdef.nbackground, color_9 );
    XtR5.SetArg( color_args_10( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_10'address );
    XtR5.GetValues( self, color_args_10, 1 );
    if string_10'length > 1 then
      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),
                              color_colormap_10,
                              string_10,
                              color_screen_rgb_10,
                              color_exact_rgb_10,
                              color_status_10 );
    else
      color_status_10 := false;
    end if;
    if color_status_10 then
      color_10 := color_screen_rgb_10.pixel;
    else
      XtR5.SetArg( color_args_10( 1 ),
                   Xmdef.Nbackground,
                   color_10'address );
      XtR5.GetValues( self, color_args_10, 1 );
    end if;
    xtr5.setarg( args( 10 ), xmdef.nforeground, color_10 );
    XtR5.SetArg( color_args_11( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_11'address );
    XtR5.GetValues( self, color_args_11, 1 );
    if string_11'length > 1 then
      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),
                              color_colormap_11,
                              string_11,
                              color_screen_rgb_11,
                              color_exact_rgb_11,
                              color_status_11 );
    else
      color_status_11 := false;
    end if;
    if color_status_11 then
      color_11 := color_screen_rgb_11.pixel;
    else
      color_11 := xlibr5.pixel( 0 );
    end if;
    xtr5.setarg( args( 11 ), xmdef.nborderColor, color_11 );
    XtR5.SetValues( self, args, 11 );
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
    args : xtr5.arglist( 1 .. 11 );
  begin
    null;
  end kivu_post_l;
end m_uil;
