with Xm;
with Xmdef;
with unchecked_deallocation;
with phases_client_data;
use  phases_client_data;
package body phases_uil is
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
  function kivu_create_ask( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_far( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_ask( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_far( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "ask" then
      widgets := kivu_create_ask( parent );
      kivu_post_ask( parent, widgets, widgets'first );
    elsif name = "far" then
      widgets := kivu_create_far( parent );
      kivu_post_far( parent, widgets, widgets'first );
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
  function kivu_create_ask( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 5 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateFileSelectionDialog(
              parent,
              "ask",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NokCallback, phases_cb_proc'address, 1 );
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_DIR_LIST );
    if child_lists( 1 )( 1 ) /= XtR5.XtNULL then
    phases_cb_proc( child_lists( 1 )( 1 ), 3, create_callback_struct'address );
    xtr5.addcallback( child_lists( 1 )( 1 ), Xmdef.NbrowseSelectionCallback, phases_cb_proc'address, 4 );
    xtr5.addcallback( child_lists( 1 )( 1 ), Xmdef.NbrowseSelectionCallback, phases_cb_proc'address, 5 );
    declare
    args : xtr5.arglist( 1 .. 6 );
    compound_string_table_1 : xm1_2_2.xmstringlist( 1 .. 3 ) := ( others => xtr5.xtnull );
    color_3 : xlibr5.pixel;
    string_3 : constant string :=
      "red" &
      character'val(   0 );
    color_args_3 : xtr5.arglist( 1 .. 1 );
    color_colormap_3 : xlibr5.colormap;
    color_screen_rgb_3 : xlibr5.color;
    color_exact_rgb_3 : xlibr5.color;
    color_status_3 : boolean;
    compound_string_table_4 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    begin
    declare
    string_1_1 : constant string :=
      "one" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "two" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
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
    end;
    xtr5.setarg( args( 1 ), xmdef.nitems, compound_string_table_1( compound_string_table_1'first )'address );
    xtr5.setarg( args( 2 ), xmdef.nitemCount, xtr5.argval( compound_string_table_1'length - 1 ) );
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
    xtr5.setarg( args( 3 ), xmdef.nbackground, color_3 );
    declare
    string_1_1 : constant string :=
      "three" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_4( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 4 ), xmdef.nselectedItems, compound_string_table_4( compound_string_table_4'first )'address );
    xtr5.setarg( args( 5 ), xmdef.nselectedItemCount, xtr5.argval( compound_string_table_4'length - 1 ) );
    XtR5.SetValues( child_lists( 1 )( 1 ), args, 5 );
    for index_1 in compound_string_table_1'range loop
      if compound_string_table_1( index_1 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_1( index_1 ) );
      end if;
    end loop;
    for index_4 in compound_string_table_4'range loop
      if compound_string_table_4( index_4 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_4( index_4 ) );
      end if;
    end loop;
      null;
    end;
      null;
    end if;
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_APPLY_BUTTON );
    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then
      null;
    end if;
    child_lists( 3 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 3 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_HorScrollBar" );
    if child_lists( 3 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    begin
    XtR5.SetValues( child_lists( 3 )( 1 ), args, 0 );
      null;
    end;
      null;
    end if;
    child_lists( 4 ) := kivu_create_far( self );
    xtr5.managechild( child_lists( 4 )( 1 ) );
    child_lists( 5 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 5 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_DIR_LIST_LABEL );
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
  end kivu_create_ask;
  function kivu_create_far( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateLabel(
              parent,
              "far",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NhelpCallback, phases_cb_proc'address, 7 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_far;
  procedure kivu_post_ask( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_DIR_LIST );
    if auto_child /= XtR5.XtNULL then
    widget_2 := xtr5.nametowidget( current_top_level,
                             widget_string_2 );
    phases_cb_proc( auto_child, 2, create_callback_struct'address );
    declare
    args : xtr5.arglist( 1 .. 6 );
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*far";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nuserData, widget_1 );
    XtR5.SetValues( auto_child, args, 1 );
      null;
    end;
      null;
    end if;
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_APPLY_BUTTON );
    if auto_child /= XtR5.XtNULL then
    widget_6 := xtr5.nametowidget( current_top_level,
                             widget_string_6 );
    xtr5.addcallback( auto_child, Xmdef.NactivateCallback, phases_cb_proc'address, 6 );
      null;
    end if;
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_HorScrollBar" );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*far";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nuserData, widget_1 );
    XtR5.SetValues( auto_child, args, 1 );
      null;
    end;
      null;
    end if;
    kivu_post_far( widgets( index ), widgets, index + 4 );
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_DIR_LIST_LABEL );
    null;
  end kivu_post_ask;
  procedure kivu_post_far( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_far;
end phases_uil;
