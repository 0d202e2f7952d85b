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
    args : xtr5.arglist( 1 .. 9 );
  begin
    declare
    arg_1 : constant xmdef.argname :=
        xmdef.argname( string'( "a"b" ) & ASCII.NUL );
    integer_1 : constant integer := 1;
    arg_2 : constant xmdef.argname :=
        xmdef.argname( string'( "\n\" ) & ASCII.NUL );
    boolean_2 : constant boolean := false;
    arg_3 : constant xmdef.argname :=
        xmdef.argname( string'( "" ) & ASCII.NUL );
    float_3 : constant xtr5.double := 1.000000000000000E+00;
    arg_4 : constant xmdef.argname :=
        xmdef.argname( string'( " x y " ) & ASCII.NUL );
    string_4 : constant string :=
      "" & character'val( 0 );
    arg_5 : constant xmdef.argname :=
        xmdef.argname( string'( "XmNwidth" ) & ASCII.NUL );
    integer_5 : constant integer := 2;
    arg_6 : constant xmdef.argname :=
        xmdef.argname( string'( "XmNitems" ) & ASCII.NUL );
    integer_6 : constant integer := 3;
    begin
    xtr5.setarg( args( 1 ), arg_1, integer_1 );
    xtr5.setarg( args( 2 ), arg_2, boolean_2 );
    xtr5.setarg( args( 3 ), arg_3, float_3'address );
    xtr5.setarg( args( 4 ), arg_4, string_4( string_4'first )'address );
    xtr5.setarg( args( 5 ), arg_5, integer_5 );
    xtr5.setarg( args( 6 ), arg_6, integer_6 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              7 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
    arg_1 : constant xmdef.argname :=
        xmdef.argname( string'( "--" ) & ASCII.NUL );
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      "" & character'val( 0 );
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
    xtr5.setarg( args( 1 ), arg_1, color_1 );
    XtR5.SetValues( self, args, 1 );
    end;
    xtr5.addcallback( self, arg_1, m_cb_proc'address, 1 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_l;
  procedure kivu_post_l( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 9 );
  begin
    declare
    arg_1 : constant xmdef.argname :=
        xmdef.argname( string'( "z" ) & ASCII.NUL );
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*l";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), arg_1, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_l;
end m_uil;
