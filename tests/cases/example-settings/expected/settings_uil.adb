with Xm;
with Xmdef;
with unchecked_deallocation;
with settings_client_data;
use  settings_client_data;
package body settings_uil is
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
  function kivu_create_settings_form( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_size_frame( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_size_title( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_size_box( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_small_toggle( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_medium_toggle( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_large_toggle( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_option_frame( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_option_title( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_option_box( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_colors_toggle( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_backup_toggle( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_sound_toggle( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_autosave_scale( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_button_row( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_apply_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_defaults_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_close_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_settings_form( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_size_frame( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_size_title( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_size_box( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_small_toggle( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_medium_toggle( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_large_toggle( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_option_frame( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_option_title( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_option_box( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_colors_toggle( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_backup_toggle( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_sound_toggle( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_autosave_scale( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_button_row( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_apply_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_defaults_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_close_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "settings_form" then
      widgets := kivu_create_settings_form( parent );
      kivu_post_settings_form( parent, widgets, widgets'first );
    elsif name = "size_frame" then
      widgets := kivu_create_size_frame( parent );
      kivu_post_size_frame( parent, widgets, widgets'first );
    elsif name = "option_frame" then
      widgets := kivu_create_option_frame( parent );
      kivu_post_option_frame( parent, widgets, widgets'first );
    elsif name = "autosave_scale" then
      widgets := kivu_create_autosave_scale( parent );
      kivu_post_autosave_scale( parent, widgets, widgets'first );
    elsif name = "button_row" then
      widgets := kivu_create_button_row( parent );
      kivu_post_button_row( parent, widgets, widgets'first );
    elsif name = "size_title" then
      widgets := kivu_create_size_title( parent );
      kivu_post_size_title( parent, widgets, widgets'first );
    elsif name = "size_box" then
      widgets := kivu_create_size_box( parent );
      kivu_post_size_box( parent, widgets, widgets'first );
    elsif name = "small_toggle" then
      widgets := kivu_create_small_toggle( parent );
      kivu_post_small_toggle( parent, widgets, widgets'first );
    elsif name = "medium_toggle" then
      widgets := kivu_create_medium_toggle( parent );
      kivu_post_medium_toggle( parent, widgets, widgets'first );
    elsif name = "large_toggle" then
      widgets := kivu_create_large_toggle( parent );
      kivu_post_large_toggle( parent, widgets, widgets'first );
    elsif name = "option_title" then
      widgets := kivu_create_option_title( parent );
      kivu_post_option_title( parent, widgets, widgets'first );
    elsif name = "option_box" then
      widgets := kivu_create_option_box( parent );
      kivu_post_option_box( parent, widgets, widgets'first );
    elsif name = "colors_toggle" then
      widgets := kivu_create_colors_toggle( parent );
      kivu_post_colors_toggle( parent, widgets, widgets'first );
    elsif name = "backup_toggle" then
      widgets := kivu_create_backup_toggle( parent );
      kivu_post_backup_toggle( parent, widgets, widgets'first );
    elsif name = "sound_toggle" then
      widgets := kivu_create_sound_toggle( parent );
      kivu_post_sound_toggle( parent, widgets, widgets'first );
    elsif name = "apply_button" then
      widgets := kivu_create_apply_button( parent );
      kivu_post_apply_button( parent, widgets, widgets'first );
    elsif name = "defaults_button" then
      widgets := kivu_create_defaults_button( parent );
      kivu_post_defaults_button( parent, widgets, widgets'first );
    elsif name = "close_button" then
      widgets := kivu_create_close_button( parent );
      kivu_post_close_button( parent, widgets, widgets'first );
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
  function kivu_create_settings_form( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 4 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    integer_1 : constant integer := 6;
    integer_2 : constant integer := 6;
    begin
    xtr5.setarg( args( 1 ), xmdef.nhorizontalSpacing, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nverticalSpacing, integer_2 );
    self := Xm1_2_2.CreateForm(
              parent,
              "settings_form",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    xtr5.addcallback( self, Xmdef.NhelpCallback, settings_cb_proc'address, 1 );
    xtr5.addcallback( self, Xmdef.NdestroyCallback, settings_cb_proc'address, 2 );
    child_lists( 1 ) := kivu_create_size_frame( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_option_frame( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_autosave_scale( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 4 ) := kivu_create_button_row( self );
    xtr5.managechild( child_lists( 4 )( 1 ) );
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
  end kivu_create_settings_form;
  function kivu_create_size_frame( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    integer_1 : constant integer := 1;
    integer_2 : constant integer := 1;
    integer_3 : constant integer := 1;
    begin
    xtr5.setarg( args( 1 ), xmdef.nleftAttachment, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nrightAttachment, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.ntopAttachment, integer_3 );
    self := Xm1_2_2.CreateFrame(
              parent,
              "size_frame",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_size_title( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_size_box( self );
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
  end kivu_create_size_frame;
  function kivu_create_size_title( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    integer_1 : constant integer := 2;
    integer_2 : constant integer := 0;
    string_3_1 : constant string :=
      "Size of letters" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    begin
    xtr5.setarg( args( 1 ), xmdef.nchildType, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nalignment, integer_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "size_title",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_size_title;
  function kivu_create_size_box( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    integer_1 : constant integer := 2;
    boolean_2 : constant boolean := true;
    begin
    xtr5.setarg( args( 1 ), xmdef.norientation, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nradioAlwaysOne, boolean_2 );
    self := Xm1_2_2.CreateRadioBox(
              parent,
              "size_box",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_small_toggle( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_medium_toggle( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_large_toggle( self );
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
  end kivu_create_size_box;
  function kivu_create_small_toggle( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "Small" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreateToggleButton(
              parent,
              "small_toggle",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NvalueChangedCallback, settings_cb_proc'address, 3 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_small_toggle;
  function kivu_create_medium_toggle( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    string_1_1 : constant string :=
      "Medium" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    boolean_2 : constant boolean := true;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nset, boolean_2 );
    self := Xm1_2_2.CreateToggleButton(
              parent,
              "medium_toggle",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NvalueChangedCallback, settings_cb_proc'address, 4 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_medium_toggle;
  function kivu_create_large_toggle( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "Large" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreateToggleButton(
              parent,
              "large_toggle",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NvalueChangedCallback, settings_cb_proc'address, 5 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_large_toggle;
  function kivu_create_option_frame( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    integer_1 : constant integer := 1;
    integer_2 : constant integer := 1;
    integer_3 : constant integer := 3;
    begin
    xtr5.setarg( args( 1 ), xmdef.nleftAttachment, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nrightAttachment, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.ntopAttachment, integer_3 );
    self := Xm1_2_2.CreateFrame(
              parent,
              "option_frame",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_option_title( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_option_box( self );
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
  end kivu_create_option_frame;
  function kivu_create_option_title( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    integer_1 : constant integer := 2;
    integer_2 : constant integer := 0;
    string_3_1 : constant string :=
      "Options" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    begin
    xtr5.setarg( args( 1 ), xmdef.nchildType, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nalignment, integer_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nlabelString, compound_string_3 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "option_title",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_3 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_option_title;
  function kivu_create_option_box( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    integer_1 : constant integer := 2;
    integer_2 : constant integer := 1;
    begin
    xtr5.setarg( args( 1 ), xmdef.npacking, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nnumColumns, integer_2 );
    self := Xm1_2_2.CreateRowColumn(
              parent,
              "option_box",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_colors_toggle( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_backup_toggle( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_sound_toggle( self );
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
  end kivu_create_option_box;
  function kivu_create_colors_toggle( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    string_1_1 : constant string :=
      "Colours" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    boolean_2 : constant boolean := true;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nset, boolean_2 );
    self := Xm1_2_2.CreateToggleButton(
              parent,
              "colors_toggle",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NvalueChangedCallback, settings_cb_proc'address, 6 );
    xtr5.addcallback( self, Xmdef.NvalueChangedCallback, settings_cb_proc'address, 7 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_colors_toggle;
  function kivu_create_backup_toggle( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "Keep a copy of each file" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreateToggleButton(
              parent,
              "backup_toggle",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NvalueChangedCallback, settings_cb_proc'address, 8 );
    xtr5.addcallback( self, Xmdef.NvalueChangedCallback, settings_cb_proc'address, 9 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_backup_toggle;
  function kivu_create_sound_toggle( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "Sound" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreateToggleButton(
              parent,
              "sound_toggle",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NvalueChangedCallback, settings_cb_proc'address, 10 );
    xtr5.addcallback( self, Xmdef.NvalueChangedCallback, settings_cb_proc'address, 11 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_sound_toggle;
  function kivu_create_autosave_scale( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 10 );
  begin
    declare
    integer_1 : constant integer := 1;
    integer_2 : constant integer := 1;
    integer_3 : constant integer := 3;
    string_4_1 : constant string :=
      "Save after minutes" &
      character'val(   0 );
    compound_string_4 : xm1_2_2.xmstring;
    integer_5 : constant integer := 2;
    integer_6 : constant integer := 1;
    integer_7 : constant integer := 60;
    integer_8 : constant integer := 10;
    boolean_9 : constant boolean := true;
    begin
    xtr5.setarg( args( 1 ), xmdef.nleftAttachment, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nrightAttachment, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.ntopAttachment, integer_3 );
    compound_string_4 :=
      xm1_2_2.stringsegmentcreate( string_4_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 4 ), xmdef.ntitleString, compound_string_4 );
    xtr5.setarg( args( 5 ), xmdef.norientation, integer_5 );
    xtr5.setarg( args( 6 ), xmdef.nminimum, integer_6 );
    xtr5.setarg( args( 7 ), xmdef.nmaximum, integer_7 );
    xtr5.setarg( args( 8 ), xmdef.nvalue, integer_8 );
    xtr5.setarg( args( 9 ), xmdef.nshowValue, boolean_9 );
    self := Xm1_2_2.CreateScale(
              parent,
              "autosave_scale",
              args,
              9 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_4 );
    end;
    xtr5.addcallback( self, Xmdef.NvalueChangedCallback, settings_cb_proc'address, 12 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_autosave_scale;
  function kivu_create_button_row( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 8 );
  begin
    declare
    integer_1 : constant integer := 1;
    integer_2 : constant integer := 1;
    integer_3 : constant integer := 3;
    integer_4 : constant integer := 1;
    integer_5 : constant integer := 2;
    integer_6 : constant integer := 2;
    integer_7 : constant integer := 1;
    begin
    xtr5.setarg( args( 1 ), xmdef.nleftAttachment, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nrightAttachment, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.ntopAttachment, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nbottomAttachment, integer_4 );
    xtr5.setarg( args( 5 ), xmdef.norientation, integer_5 );
    xtr5.setarg( args( 6 ), xmdef.npacking, integer_6 );
    xtr5.setarg( args( 7 ), xmdef.nentryAlignment, integer_7 );
    self := Xm1_2_2.CreateRowColumn(
              parent,
              "button_row",
              args,
              7 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_apply_button( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_defaults_button( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_close_button( self );
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
  end kivu_create_button_row;
  function kivu_create_apply_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "Apply" &
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
              "apply_button",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, settings_cb_proc'address, 13 );
    xtr5.addcallback( self, Xmdef.NactivateCallback, settings_cb_proc'address, 14 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_apply_button;
  function kivu_create_defaults_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "Defaults" &
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
              "defaults_button",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, settings_cb_proc'address, 15 );
    xtr5.addcallback( self, Xmdef.NactivateCallback, settings_cb_proc'address, 16 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_defaults_button;
  function kivu_create_close_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "Close" &
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
              "close_button",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, settings_cb_proc'address, 17 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_close_button;
  procedure kivu_post_settings_form( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    kivu_post_size_frame( widgets( index ), widgets, index + 1 );
    kivu_post_option_frame( widgets( index ), widgets, index + 7 );
    kivu_post_autosave_scale( widgets( index ), widgets, index + 13 );
    kivu_post_button_row( widgets( index ), widgets, index + 14 );
    null;
  end kivu_post_settings_form;
  procedure kivu_post_size_frame( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    kivu_post_size_title( widgets( index ), widgets, index + 1 );
    kivu_post_size_box( widgets( index ), widgets, index + 2 );
    null;
  end kivu_post_size_frame;
  procedure kivu_post_size_title( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_size_title;
  procedure kivu_post_size_box( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    kivu_post_small_toggle( widgets( index ), widgets, index + 1 );
    kivu_post_medium_toggle( widgets( index ), widgets, index + 2 );
    kivu_post_large_toggle( widgets( index ), widgets, index + 3 );
    null;
  end kivu_post_size_box;
  procedure kivu_post_small_toggle( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_small_toggle;
  procedure kivu_post_medium_toggle( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    null;
  end kivu_post_medium_toggle;
  procedure kivu_post_large_toggle( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_large_toggle;
  procedure kivu_post_option_frame( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*size_frame";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ntopWidget, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    kivu_post_option_title( widgets( index ), widgets, index + 1 );
    kivu_post_option_box( widgets( index ), widgets, index + 2 );
    null;
  end kivu_post_option_frame;
  procedure kivu_post_option_title( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_option_title;
  procedure kivu_post_option_box( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    kivu_post_colors_toggle( widgets( index ), widgets, index + 1 );
    kivu_post_backup_toggle( widgets( index ), widgets, index + 2 );
    kivu_post_sound_toggle( widgets( index ), widgets, index + 3 );
    null;
  end kivu_post_option_box;
  procedure kivu_post_colors_toggle( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    null;
  end kivu_post_colors_toggle;
  procedure kivu_post_backup_toggle( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_backup_toggle;
  procedure kivu_post_sound_toggle( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_sound_toggle;
  procedure kivu_post_autosave_scale( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 10 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*option_frame";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ntopWidget, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_autosave_scale;
  procedure kivu_post_button_row( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 8 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*autosave_scale";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ntopWidget, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    kivu_post_apply_button( widgets( index ), widgets, index + 1 );
    kivu_post_defaults_button( widgets( index ), widgets, index + 2 );
    kivu_post_close_button( widgets( index ), widgets, index + 3 );
    null;
  end kivu_post_button_row;
  procedure kivu_post_apply_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_apply_button;
  procedure kivu_post_defaults_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_defaults_button;
  procedure kivu_post_close_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_close_button;
end settings_uil;
