with Xm;
with Xmdef;
with unchecked_deallocation;
with editor_client_data;
use  editor_client_data;
package body editor_uil is
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
  function kivu_create_editor_window( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_menu_bar( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_file_cascade( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_file_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_new_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_open_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_open_separator( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_save_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_save_as_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_save_separator( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_exit_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_edit_cascade( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_edit_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_cut_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_copy_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_paste_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_clear_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_anon_xmseparator_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_find_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_view_cascade( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_view_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_wrap_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_status_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_help_cascade( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_help_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_contents_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_anon_xmseparator_2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_about_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_work_area( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_edit_text( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_message_frame( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_message_line( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_editor_window( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_menu_bar( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_file_cascade( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_file_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_new_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_open_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_open_separator( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_save_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_save_as_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_save_separator( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_exit_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_edit_cascade( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_edit_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_cut_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_copy_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_paste_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_clear_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_xmseparator_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_find_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_view_cascade( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_view_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_wrap_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_status_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_help_cascade( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_help_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_contents_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_xmseparator_2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_about_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_work_area( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_edit_text( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_message_frame( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_message_line( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "editor_window" then
      widgets := kivu_create_editor_window( parent );
      kivu_post_editor_window( parent, widgets, widgets'first );
    elsif name = "menu_bar" then
      widgets := kivu_create_menu_bar( parent );
      kivu_post_menu_bar( parent, widgets, widgets'first );
    elsif name = "work_area" then
      widgets := kivu_create_work_area( parent );
      kivu_post_work_area( parent, widgets, widgets'first );
    elsif name = "message_frame" then
      widgets := kivu_create_message_frame( parent );
      kivu_post_message_frame( parent, widgets, widgets'first );
    elsif name = "file_cascade" then
      widgets := kivu_create_file_cascade( parent );
      kivu_post_file_cascade( parent, widgets, widgets'first );
    elsif name = "edit_cascade" then
      widgets := kivu_create_edit_cascade( parent );
      kivu_post_edit_cascade( parent, widgets, widgets'first );
    elsif name = "view_cascade" then
      widgets := kivu_create_view_cascade( parent );
      kivu_post_view_cascade( parent, widgets, widgets'first );
    elsif name = "help_cascade" then
      widgets := kivu_create_help_cascade( parent );
      kivu_post_help_cascade( parent, widgets, widgets'first );
    elsif name = "file_menu" then
      widgets := kivu_create_file_menu( parent );
      kivu_post_file_menu( parent, widgets, widgets'first );
    elsif name = "new_item" then
      widgets := kivu_create_new_item( parent );
      kivu_post_new_item( parent, widgets, widgets'first );
    elsif name = "open_item" then
      widgets := kivu_create_open_item( parent );
      kivu_post_open_item( parent, widgets, widgets'first );
    elsif name = "open_separator" then
      widgets := kivu_create_open_separator( parent );
      kivu_post_open_separator( parent, widgets, widgets'first );
    elsif name = "save_item" then
      widgets := kivu_create_save_item( parent );
      kivu_post_save_item( parent, widgets, widgets'first );
    elsif name = "save_as_item" then
      widgets := kivu_create_save_as_item( parent );
      kivu_post_save_as_item( parent, widgets, widgets'first );
    elsif name = "save_separator" then
      widgets := kivu_create_save_separator( parent );
      kivu_post_save_separator( parent, widgets, widgets'first );
    elsif name = "exit_item" then
      widgets := kivu_create_exit_item( parent );
      kivu_post_exit_item( parent, widgets, widgets'first );
    elsif name = "edit_menu" then
      widgets := kivu_create_edit_menu( parent );
      kivu_post_edit_menu( parent, widgets, widgets'first );
    elsif name = "cut_item" then
      widgets := kivu_create_cut_item( parent );
      kivu_post_cut_item( parent, widgets, widgets'first );
    elsif name = "copy_item" then
      widgets := kivu_create_copy_item( parent );
      kivu_post_copy_item( parent, widgets, widgets'first );
    elsif name = "paste_item" then
      widgets := kivu_create_paste_item( parent );
      kivu_post_paste_item( parent, widgets, widgets'first );
    elsif name = "clear_item" then
      widgets := kivu_create_clear_item( parent );
      kivu_post_clear_item( parent, widgets, widgets'first );
    elsif name = "find_item" then
      widgets := kivu_create_find_item( parent );
      kivu_post_find_item( parent, widgets, widgets'first );
    elsif name = "view_menu" then
      widgets := kivu_create_view_menu( parent );
      kivu_post_view_menu( parent, widgets, widgets'first );
    elsif name = "wrap_item" then
      widgets := kivu_create_wrap_item( parent );
      kivu_post_wrap_item( parent, widgets, widgets'first );
    elsif name = "status_item" then
      widgets := kivu_create_status_item( parent );
      kivu_post_status_item( parent, widgets, widgets'first );
    elsif name = "help_menu" then
      widgets := kivu_create_help_menu( parent );
      kivu_post_help_menu( parent, widgets, widgets'first );
    elsif name = "contents_item" then
      widgets := kivu_create_contents_item( parent );
      kivu_post_contents_item( parent, widgets, widgets'first );
    elsif name = "about_item" then
      widgets := kivu_create_about_item( parent );
      kivu_post_about_item( parent, widgets, widgets'first );
    elsif name = "edit_text" then
      widgets := kivu_create_edit_text( parent );
      kivu_post_edit_text( parent, widgets, widgets'first );
    elsif name = "message_line" then
      widgets := kivu_create_message_line( parent );
      kivu_post_message_line( parent, widgets, widgets'first );
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
  function kivu_create_editor_window( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    boolean_1 : constant boolean := true;
    begin
    xtr5.setarg( args( 1 ), xmdef.nshowSeparator, boolean_1 );
    self := Xm1_2_2.CreateMainWindow(
              parent,
              "editor_window",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_menu_bar( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_work_area( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_message_frame( self );
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
  end kivu_create_editor_window;
  function kivu_create_menu_bar( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 4 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    self := Xm1_2_2.CreateMenuBar(
              parent,
              "menu_bar",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_file_cascade( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_edit_cascade( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_view_cascade( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 4 ) := kivu_create_help_cascade( self );
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
  end kivu_create_menu_bar;
  function kivu_create_file_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 7 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    integer_1 : constant integer := 0;
    begin
    xtr5.setarg( args( 1 ), xmdef.ntearOffModel, integer_1 );
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "file_menu",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_new_item( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_open_item( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_open_separator( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 4 ) := kivu_create_save_item( self );
    xtr5.managechild( child_lists( 4 )( 1 ) );
    child_lists( 5 ) := kivu_create_save_as_item( self );
    xtr5.managechild( child_lists( 5 )( 1 ) );
    child_lists( 6 ) := kivu_create_save_separator( self );
    xtr5.managechild( child_lists( 6 )( 1 ) );
    child_lists( 7 ) := kivu_create_exit_item( self );
    xtr5.managechild( child_lists( 7 )( 1 ) );
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
  end kivu_create_file_menu;
  function kivu_create_new_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    string_1_1 : constant string :=
      "New" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'N' ) );
    string_3 : constant string :=
      "Ctrl<Key>n" &
      character'val(   0 );
    string_4_1 : constant string :=
      "Ctrl+N" &
      character'val(   0 );
    compound_string_4 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    xtr5.setarg( args( 3 ), xmdef.naccelerator, string_3( string_3'first )'address );
    compound_string_4 :=
      xm1_2_2.stringsegmentcreate( string_4_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 4 ), xmdef.nacceleratorText, compound_string_4 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "new_item",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    xm1_2_2.stringfree( compound_string_4 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, editor_cb_proc'address, 1 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_new_item;
  function kivu_create_open_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    string_1_1 : constant string :=
      "Open..." &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'O' ) );
    string_3 : constant string :=
      "Ctrl<Key>o" &
      character'val(   0 );
    string_4_1 : constant string :=
      "Ctrl+O" &
      character'val(   0 );
    compound_string_4 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    xtr5.setarg( args( 3 ), xmdef.naccelerator, string_3( string_3'first )'address );
    compound_string_4 :=
      xm1_2_2.stringsegmentcreate( string_4_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 4 ), xmdef.nacceleratorText, compound_string_4 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "open_item",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    xm1_2_2.stringfree( compound_string_4 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, editor_cb_proc'address, 2 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_open_item;
  function kivu_create_open_separator( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateSeparator(
              parent,
              "open_separator",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_open_separator;
  function kivu_create_save_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 5 );
  begin
    declare
    string_1_1 : constant string :=
      "Save" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'S' ) );
    string_3 : constant string :=
      "Ctrl<Key>s" &
      character'val(   0 );
    string_4_1 : constant string :=
      "Ctrl+S" &
      character'val(   0 );
    compound_string_4 : xm1_2_2.xmstring;
    boolean_5 : constant boolean := false;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    xtr5.setarg( args( 3 ), xmdef.naccelerator, string_3( string_3'first )'address );
    compound_string_4 :=
      xm1_2_2.stringsegmentcreate( string_4_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 4 ), xmdef.nacceleratorText, compound_string_4 );
    xtr5.setarg( args( 5 ), xmdef.nsensitive, boolean_5 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "save_item",
              args,
              5 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    xm1_2_2.stringfree( compound_string_4 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, editor_cb_proc'address, 3 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_save_item;
  function kivu_create_save_as_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    string_1_1 : constant string :=
      "Save As..." &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'A' ) );
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "save_as_item",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, editor_cb_proc'address, 4 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_save_as_item;
  function kivu_create_save_separator( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    integer_1 : constant integer := 5;
    begin
    xtr5.setarg( args( 1 ), xmdef.nseparatorType, integer_1 );
    self := Xm1_2_2.CreateSeparator(
              parent,
              "save_separator",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_save_separator;
  function kivu_create_exit_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    string_1_1 : constant string :=
      "Exit" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'x' ) );
    string_3 : constant string :=
      "Ctrl<Key>q" &
      character'val(   0 );
    string_4_1 : constant string :=
      "Ctrl+Q" &
      character'val(   0 );
    compound_string_4 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    xtr5.setarg( args( 3 ), xmdef.naccelerator, string_3( string_3'first )'address );
    compound_string_4 :=
      xm1_2_2.stringsegmentcreate( string_4_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 4 ), xmdef.nacceleratorText, compound_string_4 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "exit_item",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    xm1_2_2.stringfree( compound_string_4 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, editor_cb_proc'address, 5 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_exit_item;
  function kivu_create_file_cascade( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    child_lists( 1 ) := kivu_create_file_menu( parent );
    declare
    string_1_1 : constant string :=
      "File" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'F' ) );
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    xtr5.setarg( args( 3 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateCascadeButton(
              parent,
              "file_cascade",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
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
  end kivu_create_file_cascade;
  function kivu_create_edit_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 6 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "edit_menu",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_cut_item( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_copy_item( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_paste_item( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 4 ) := kivu_create_clear_item( self );
    xtr5.managechild( child_lists( 4 )( 1 ) );
    child_lists( 5 ) := kivu_create_anon_xmseparator_1( self );
    xtr5.managechild( child_lists( 5 )( 1 ) );
    child_lists( 6 ) := kivu_create_find_item( self );
    xtr5.managechild( child_lists( 6 )( 1 ) );
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
  end kivu_create_edit_menu;
  function kivu_create_cut_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    string_1_1 : constant string :=
      "Cut" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 't' ) );
    string_3 : constant string :=
      "Shift<Key>osfDelete" &
      character'val(   0 );
    string_4_1 : constant string :=
      "Shift+Del" &
      character'val(   0 );
    compound_string_4 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    xtr5.setarg( args( 3 ), xmdef.naccelerator, string_3( string_3'first )'address );
    compound_string_4 :=
      xm1_2_2.stringsegmentcreate( string_4_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 4 ), xmdef.nacceleratorText, compound_string_4 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "cut_item",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    xm1_2_2.stringfree( compound_string_4 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, editor_cb_proc'address, 6 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_cut_item;
  function kivu_create_copy_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    string_1_1 : constant string :=
      "Copy" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'C' ) );
    string_3 : constant string :=
      "Ctrl<Key>osfInsert" &
      character'val(   0 );
    string_4_1 : constant string :=
      "Ctrl+Ins" &
      character'val(   0 );
    compound_string_4 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    xtr5.setarg( args( 3 ), xmdef.naccelerator, string_3( string_3'first )'address );
    compound_string_4 :=
      xm1_2_2.stringsegmentcreate( string_4_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 4 ), xmdef.nacceleratorText, compound_string_4 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "copy_item",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    xm1_2_2.stringfree( compound_string_4 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, editor_cb_proc'address, 7 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_copy_item;
  function kivu_create_paste_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    string_1_1 : constant string :=
      "Paste" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'P' ) );
    string_3 : constant string :=
      "Shift<Key>osfInsert" &
      character'val(   0 );
    string_4_1 : constant string :=
      "Shift+Ins" &
      character'val(   0 );
    compound_string_4 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    xtr5.setarg( args( 3 ), xmdef.naccelerator, string_3( string_3'first )'address );
    compound_string_4 :=
      xm1_2_2.stringsegmentcreate( string_4_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 4 ), xmdef.nacceleratorText, compound_string_4 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "paste_item",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    xm1_2_2.stringfree( compound_string_4 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, editor_cb_proc'address, 8 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_paste_item;
  function kivu_create_clear_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    string_1_1 : constant string :=
      "Clear" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'l' ) );
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "clear_item",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, editor_cb_proc'address, 9 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_clear_item;
  function kivu_create_anon_xmseparator_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateSeparator(
              parent,
              "anon_XmSeparator_1",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_anon_xmseparator_1;
  function kivu_create_find_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    string_1_1 : constant string :=
      "Find..." &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'F' ) );
    string_3 : constant string :=
      "Ctrl<Key>f" &
      character'val(   0 );
    string_4_1 : constant string :=
      "Ctrl+F" &
      character'val(   0 );
    compound_string_4 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    xtr5.setarg( args( 3 ), xmdef.naccelerator, string_3( string_3'first )'address );
    compound_string_4 :=
      xm1_2_2.stringsegmentcreate( string_4_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 4 ), xmdef.nacceleratorText, compound_string_4 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "find_item",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    xm1_2_2.stringfree( compound_string_4 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, editor_cb_proc'address, 10 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_find_item;
  function kivu_create_edit_cascade( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    child_lists( 1 ) := kivu_create_edit_menu( parent );
    declare
    string_1_1 : constant string :=
      "Edit" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'E' ) );
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    xtr5.setarg( args( 3 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateCascadeButton(
              parent,
              "edit_cascade",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
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
  end kivu_create_edit_cascade;
  function kivu_create_view_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "view_menu",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_wrap_item( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_status_item( self );
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
  end kivu_create_view_menu;
  function kivu_create_wrap_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    string_1_1 : constant string :=
      "Wrap Lines" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'W' ) );
    boolean_3 : constant boolean := false;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    xtr5.setarg( args( 3 ), xmdef.nset, boolean_3 );
    self := Xm1_2_2.CreateToggleButton(
              parent,
              "wrap_item",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NvalueChangedCallback, editor_cb_proc'address, 11 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_wrap_item;
  function kivu_create_status_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    string_1_1 : constant string :=
      "Message Line" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'M' ) );
    boolean_3 : constant boolean := true;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    xtr5.setarg( args( 3 ), xmdef.nset, boolean_3 );
    self := Xm1_2_2.CreateToggleButton(
              parent,
              "status_item",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NvalueChangedCallback, editor_cb_proc'address, 12 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_status_item;
  function kivu_create_view_cascade( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    child_lists( 1 ) := kivu_create_view_menu( parent );
    declare
    string_1_1 : constant string :=
      "View" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'V' ) );
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    xtr5.setarg( args( 3 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateCascadeButton(
              parent,
              "view_cascade",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
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
  end kivu_create_view_cascade;
  function kivu_create_help_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "help_menu",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_contents_item( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_anon_xmseparator_2( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_about_item( self );
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
  end kivu_create_help_menu;
  function kivu_create_contents_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    string_1_1 : constant string :=
      "Contents" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'C' ) );
    string_3 : constant string :=
      "<Key>F1" &
      character'val(   0 );
    string_4_1 : constant string :=
      "F1" &
      character'val(   0 );
    compound_string_4 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    xtr5.setarg( args( 3 ), xmdef.naccelerator, string_3( string_3'first )'address );
    compound_string_4 :=
      xm1_2_2.stringsegmentcreate( string_4_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 4 ), xmdef.nacceleratorText, compound_string_4 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "contents_item",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    xm1_2_2.stringfree( compound_string_4 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, editor_cb_proc'address, 13 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_contents_item;
  function kivu_create_anon_xmseparator_2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateSeparator(
              parent,
              "anon_XmSeparator_2",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_anon_xmseparator_2;
  function kivu_create_about_item( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    string_1_1 : constant string :=
      "About Editor" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'A' ) );
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "about_item",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, editor_cb_proc'address, 14 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_about_item;
  function kivu_create_help_cascade( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    child_lists( 1 ) := kivu_create_help_menu( parent );
    declare
    string_1_1 : constant string :=
      "Help" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'H' ) );
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nmnemonic, keysym_2 );
    xtr5.setarg( args( 3 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateCascadeButton(
              parent,
              "help_cascade",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
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
  end kivu_create_help_cascade;
  function kivu_create_work_area( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "work_area",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_edit_text( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
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
  end kivu_create_work_area;
  function kivu_create_edit_text( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 10 );
  begin
    declare
    integer_1 : constant integer := 0;
    integer_2 : constant integer := 24;
    integer_3 : constant integer := 80;
    integer_4 : constant integer := 1048576;
    boolean_5 : constant boolean := true;
    boolean_6 : constant boolean := false;
    integer_7 : constant integer := 1;
    integer_8 : constant integer := 1;
    integer_9 : constant integer := 1;
    integer_10 : constant integer := 1;
    begin
    xtr5.setarg( args( 1 ), xmdef.neditMode, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nrows, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.ncolumns, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nmaxLength, integer_4 );
    xtr5.setarg( args( 5 ), xmdef.nscrollHorizontal, boolean_5 );
    xtr5.setarg( args( 6 ), xmdef.nwordWrap, boolean_6 );
    xtr5.setarg( args( 7 ), xmdef.ntopAttachment, integer_7 );
    xtr5.setarg( args( 8 ), xmdef.nbottomAttachment, integer_8 );
    xtr5.setarg( args( 9 ), xmdef.nleftAttachment, integer_9 );
    xtr5.setarg( args( 10 ), xmdef.nrightAttachment, integer_10 );
    self := Xm1_2_2.CreateScrolledText(
              parent,
              "edit_text",
              args,
              10 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    xtr5.addcallback( self, Xmdef.NvalueChangedCallback, editor_cb_proc'address, 15 );
    xtr5.addcallback( self, Xmdef.NmotionVerifyCallback, editor_cb_proc'address, 16 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_edit_text;
  function kivu_create_message_frame( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    integer_1 : constant integer := 7;
    begin
    xtr5.setarg( args( 1 ), xmdef.nshadowType, integer_1 );
    self := Xm1_2_2.CreateFrame(
              parent,
              "message_frame",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_message_line( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
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
  end kivu_create_message_frame;
  function kivu_create_message_line( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    integer_1 : constant integer := 0;
    string_2_1 : constant string :=
      "Ready" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    begin
    xtr5.setarg( args( 1 ), xmdef.nalignment, integer_1 );
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 2 ), xmdef.nlabelString, compound_string_2 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "message_line",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_2 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_message_line;
  procedure kivu_post_editor_window( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*message_frame";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nmessageWindow, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    kivu_post_menu_bar( widgets( index ), widgets, index + 1 );
    kivu_post_work_area( widgets( index ), widgets, index + 28 );
    kivu_post_message_frame( widgets( index ), widgets, index + 30 );
    null;
  end kivu_post_editor_window;
  procedure kivu_post_menu_bar( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*help_cascade";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nmenuHelpWidget, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    kivu_post_file_cascade( widgets( index ), widgets, index + 1 );
    kivu_post_edit_cascade( widgets( index ), widgets, index + 10 );
    kivu_post_view_cascade( widgets( index ), widgets, index + 18 );
    kivu_post_help_cascade( widgets( index ), widgets, index + 22 );
    null;
  end kivu_post_menu_bar;
  procedure kivu_post_file_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    kivu_post_new_item( widgets( index ), widgets, index + 1 );
    kivu_post_open_item( widgets( index ), widgets, index + 2 );
    kivu_post_open_separator( widgets( index ), widgets, index + 3 );
    kivu_post_save_item( widgets( index ), widgets, index + 4 );
    kivu_post_save_as_item( widgets( index ), widgets, index + 5 );
    kivu_post_save_separator( widgets( index ), widgets, index + 6 );
    kivu_post_exit_item( widgets( index ), widgets, index + 7 );
    null;
  end kivu_post_file_menu;
  procedure kivu_post_new_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    null;
  end kivu_post_new_item;
  procedure kivu_post_open_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    null;
  end kivu_post_open_item;
  procedure kivu_post_open_separator( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_open_separator;
  procedure kivu_post_save_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 5 );
  begin
    null;
  end kivu_post_save_item;
  procedure kivu_post_save_as_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    null;
  end kivu_post_save_as_item;
  procedure kivu_post_save_separator( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_save_separator;
  procedure kivu_post_exit_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    null;
  end kivu_post_exit_item;
  procedure kivu_post_file_cascade( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    kivu_post_file_menu( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_file_cascade;
  procedure kivu_post_edit_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_cut_item( widgets( index ), widgets, index + 1 );
    kivu_post_copy_item( widgets( index ), widgets, index + 2 );
    kivu_post_paste_item( widgets( index ), widgets, index + 3 );
    kivu_post_clear_item( widgets( index ), widgets, index + 4 );
    kivu_post_anon_xmseparator_1( widgets( index ), widgets, index + 5 );
    kivu_post_find_item( widgets( index ), widgets, index + 6 );
    null;
  end kivu_post_edit_menu;
  procedure kivu_post_cut_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    null;
  end kivu_post_cut_item;
  procedure kivu_post_copy_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    null;
  end kivu_post_copy_item;
  procedure kivu_post_paste_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    null;
  end kivu_post_paste_item;
  procedure kivu_post_clear_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    null;
  end kivu_post_clear_item;
  procedure kivu_post_anon_xmseparator_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_anon_xmseparator_1;
  procedure kivu_post_find_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    null;
  end kivu_post_find_item;
  procedure kivu_post_edit_cascade( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    kivu_post_edit_menu( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_edit_cascade;
  procedure kivu_post_view_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_wrap_item( widgets( index ), widgets, index + 1 );
    kivu_post_status_item( widgets( index ), widgets, index + 2 );
    null;
  end kivu_post_view_menu;
  procedure kivu_post_wrap_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_wrap_item;
  procedure kivu_post_status_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_status_item;
  procedure kivu_post_view_cascade( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    kivu_post_view_menu( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_view_cascade;
  procedure kivu_post_help_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_contents_item( widgets( index ), widgets, index + 1 );
    kivu_post_anon_xmseparator_2( widgets( index ), widgets, index + 2 );
    kivu_post_about_item( widgets( index ), widgets, index + 3 );
    null;
  end kivu_post_help_menu;
  procedure kivu_post_contents_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    null;
  end kivu_post_contents_item;
  procedure kivu_post_anon_xmseparator_2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_anon_xmseparator_2;
  procedure kivu_post_about_item( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    null;
  end kivu_post_about_item;
  procedure kivu_post_help_cascade( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    kivu_post_help_menu( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_help_cascade;
  procedure kivu_post_work_area( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_edit_text( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_work_area;
  procedure kivu_post_edit_text( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 10 );
  begin
    null;
  end kivu_post_edit_text;
  procedure kivu_post_message_frame( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    kivu_post_message_line( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_message_frame;
  procedure kivu_post_message_line( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    null;
  end kivu_post_message_line;
end editor_uil;
