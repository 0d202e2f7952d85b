with Xm;
with Xmdef;
with unchecked_deallocation;
with cleanups_client_data;
use  cleanups_client_data;
package body cleanups_uil is
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
  function kivu_create_first( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_anon_xmpushbutton_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_second( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_first( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_xmpushbutton_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_second( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "first" then
      widgets := kivu_create_first( parent );
      kivu_post_first( parent, widgets, widgets'first );
    elsif name = "second" then
      widgets := kivu_create_second( parent );
      kivu_post_second( parent, widgets, widgets'first );
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
  function kivu_create_first( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    string_1_1 : constant string :=
      "T" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    compound_string_table_2 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    integer_4 : constant integer := 1;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.ndialogTitle, compound_string_1 );
    declare
    string_1_1 : constant string :=
      "p" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_2( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 2 ), xmdef.nlistItems, compound_string_table_2( compound_string_table_2'first )'address );
    xtr5.setarg( args( 3 ), xmdef.nlistItemCount, xtr5.argval( compound_string_table_2'length - 1 ) );
    xtr5.setarg( args( 4 ), xmdef.ny, integer_4 );
    self := Xm1_2_2.CreateFormDialog(
              parent,
              "first",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    for index_2 in compound_string_table_2'range loop
      if compound_string_table_2( index_2 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_2( index_2 ) );
      end if;
    end loop;
    end;
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.addcallback( self, Xmdef.NmapCallback, cleanups_cb_proc'address, 1 );
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
    xtr5.addcallback( self, Xmdef.NmapCallback, cleanups_cb_proc'address, 2 );
    declare
    string_1_1 : constant string :=
      "u" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "v" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_3( 1 ) := compound_string_1;
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_3( 2 ) := compound_string_2;
    end;
    xtr5.addcallback( self, Xmdef.NunmapCallback, cleanups_cb_proc'address, 3 );
    child_lists( 1 ) := kivu_create_anon_xmpushbutton_1( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_Cancel" );
    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then
    XtR5.SetArg( color_args_4( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_4'address );
    XtR5.GetValues( child_lists( 2 )( 1 ), color_args_4, 1 );
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
    xtr5.addcallback( child_lists( 2 )( 1 ), Xmdef.NactivateCallback, cleanups_cb_proc'address, 4 );
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
  end kivu_create_first;
  function kivu_create_anon_xmpushbutton_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePushButtonGadget(
              parent,
              "anon_XmPushButton_1",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    XtR5.SetArg( color_args_5( 1 ),
                 Xmdef.Ncolormap,
                 color_colormap_5'address );
    XtR5.GetValues( parent, color_args_5, 1 );
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
    xtr5.addcallback( self, Xmdef.NactivateCallback, cleanups_cb_proc'address, 5 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_anon_xmpushbutton_1;
  function kivu_create_second( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateBulletinBoard(
              parent,
              "second",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    compound_string_6 :=
      xm1_2_2.stringsegmentcreate( string_6_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.addcallback( self, Xmdef.NmapCallback, cleanups_cb_proc'address, 6 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_second;
  procedure kivu_post_first( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    kivu_post_anon_xmpushbutton_1( widgets( index ), widgets, index + 1 );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_Cancel" );
    if auto_child /= XtR5.XtNULL then
      null;
    end if;
    null;
  end kivu_post_first;
  procedure kivu_post_anon_xmpushbutton_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_anon_xmpushbutton_1;
  procedure kivu_post_second( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_second;
end cleanups_uil;
