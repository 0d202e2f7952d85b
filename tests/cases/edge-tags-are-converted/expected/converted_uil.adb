with Xm;
with Xmdef;
with unchecked_deallocation;
with converted_client_data;
use  converted_client_data;
package body converted_uil is
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
  procedure kivu_post_top( parent : in xtr5.widget;
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
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateFrame(
              parent,
              "top",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NhelpCallback, converted_cb_proc'address, 1 );
    xtr5.addcallback( self, Xmdef.NhelpCallback, converted_cb_proc'address, 2 );
    xtr5.addcallback( self, Xmdef.NhelpCallback, converted_cb_proc'address, 3 );
    xtr5.addcallback( self, Xmdef.NhelpCallback, converted_cb_proc'address, 4 );
    compound_string_5 :=
      xm1_2_2.stringsegmentcreate( string_5_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.addcallback( self, Xmdef.NhelpCallback, converted_cb_proc'address, 5 );
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
      XtR5.SetArg( color_args_6( 1 ),
                   Xmdef.Nbackground,
                   color_6'address );
      XtR5.GetValues( self, color_args_6, 1 );
    end if;
    xtr5.addcallback( self, Xmdef.NhelpCallback, converted_cb_proc'address, 6 );
    xtr5.addcallback( self, Xmdef.NhelpCallback, converted_cb_proc'address, 7 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_top;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_top;
end converted_uil;
