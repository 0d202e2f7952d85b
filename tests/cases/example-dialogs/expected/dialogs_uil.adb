with Xm;
with Xmdef;
with unchecked_deallocation;
with dialogs_client_data;
use  dialogs_client_data;
package body dialogs_uil is
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
  function kivu_create_launcher( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_saved_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_discard_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_rename_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_choose_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_print_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_working_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_saved_dialog( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_discard_dialog( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_rename_dialog( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_choose_dialog( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_print_dialog( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_copies_label( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_copies_field( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_both_sides_toggle( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_print_separator( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_print_ok( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_print_cancel( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_print_help( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_working_dialog( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_launcher( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_saved_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_discard_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_rename_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_choose_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_print_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_working_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_saved_dialog( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_discard_dialog( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_rename_dialog( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_choose_dialog( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_print_dialog( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_copies_label( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_copies_field( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_both_sides_toggle( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_print_separator( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_print_ok( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_print_cancel( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_print_help( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_working_dialog( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "launcher" then
      widgets := kivu_create_launcher( parent );
      kivu_post_launcher( parent, widgets, widgets'first );
    elsif name = "saved_dialog" then
      widgets := kivu_create_saved_dialog( parent );
      kivu_post_saved_dialog( parent, widgets, widgets'first );
    elsif name = "discard_dialog" then
      widgets := kivu_create_discard_dialog( parent );
      kivu_post_discard_dialog( parent, widgets, widgets'first );
    elsif name = "rename_dialog" then
      widgets := kivu_create_rename_dialog( parent );
      kivu_post_rename_dialog( parent, widgets, widgets'first );
    elsif name = "choose_dialog" then
      widgets := kivu_create_choose_dialog( parent );
      kivu_post_choose_dialog( parent, widgets, widgets'first );
    elsif name = "print_dialog" then
      widgets := kivu_create_print_dialog( parent );
      kivu_post_print_dialog( parent, widgets, widgets'first );
    elsif name = "working_dialog" then
      widgets := kivu_create_working_dialog( parent );
      kivu_post_working_dialog( parent, widgets, widgets'first );
    elsif name = "saved_button" then
      widgets := kivu_create_saved_button( parent );
      kivu_post_saved_button( parent, widgets, widgets'first );
    elsif name = "discard_button" then
      widgets := kivu_create_discard_button( parent );
      kivu_post_discard_button( parent, widgets, widgets'first );
    elsif name = "rename_button" then
      widgets := kivu_create_rename_button( parent );
      kivu_post_rename_button( parent, widgets, widgets'first );
    elsif name = "choose_button" then
      widgets := kivu_create_choose_button( parent );
      kivu_post_choose_button( parent, widgets, widgets'first );
    elsif name = "print_button" then
      widgets := kivu_create_print_button( parent );
      kivu_post_print_button( parent, widgets, widgets'first );
    elsif name = "working_button" then
      widgets := kivu_create_working_button( parent );
      kivu_post_working_button( parent, widgets, widgets'first );
    elsif name = "copies_label" then
      widgets := kivu_create_copies_label( parent );
      kivu_post_copies_label( parent, widgets, widgets'first );
    elsif name = "copies_field" then
      widgets := kivu_create_copies_field( parent );
      kivu_post_copies_field( parent, widgets, widgets'first );
    elsif name = "both_sides_toggle" then
      widgets := kivu_create_both_sides_toggle( parent );
      kivu_post_both_sides_toggle( parent, widgets, widgets'first );
    elsif name = "print_separator" then
      widgets := kivu_create_print_separator( parent );
      kivu_post_print_separator( parent, widgets, widgets'first );
    elsif name = "print_ok" then
      widgets := kivu_create_print_ok( parent );
      kivu_post_print_ok( parent, widgets, widgets'first );
    elsif name = "print_cancel" then
      widgets := kivu_create_print_cancel( parent );
      kivu_post_print_cancel( parent, widgets, widgets'first );
    elsif name = "print_help" then
      widgets := kivu_create_print_help( parent );
      kivu_post_print_help( parent, widgets, widgets'first );
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
  function kivu_create_launcher( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 6 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 5 );
  begin
    declare
    integer_1 : constant integer := 1;
    integer_2 : constant integer := 1;
    integer_3 : constant integer := 4;
    integer_4 : constant integer := 8;
    integer_5 : constant integer := 8;
    begin
    xtr5.setarg( args( 1 ), xmdef.norientation, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.npacking, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.nspacing, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nmarginWidth, integer_4 );
    xtr5.setarg( args( 5 ), xmdef.nmarginHeight, integer_5 );
    self := Xm1_2_2.CreateRowColumn(
              parent,
              "launcher",
              args,
              5 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_saved_button( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_discard_button( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_rename_button( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 4 ) := kivu_create_choose_button( self );
    xtr5.managechild( child_lists( 4 )( 1 ) );
    child_lists( 5 ) := kivu_create_print_button( self );
    xtr5.managechild( child_lists( 5 )( 1 ) );
    child_lists( 6 ) := kivu_create_working_button( self );
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
  end kivu_create_launcher;
  function kivu_create_saved_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "Message..." &
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
              "saved_button",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, dialogs_cb_proc'address, 1 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_saved_button;
  function kivu_create_discard_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "Question..." &
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
              "discard_button",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, dialogs_cb_proc'address, 2 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_discard_button;
  function kivu_create_rename_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "Prompt..." &
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
              "rename_button",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, dialogs_cb_proc'address, 3 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_rename_button;
  function kivu_create_choose_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "File selection..." &
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
              "choose_button",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, dialogs_cb_proc'address, 4 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_choose_button;
  function kivu_create_print_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "Form..." &
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
              "print_button",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, dialogs_cb_proc'address, 5 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_print_button;
  function kivu_create_working_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    string_1_1 : constant string :=
      "Working..." &
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
              "working_button",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, dialogs_cb_proc'address, 6 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_working_button;
  function kivu_create_saved_dialog( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    string_1_1 : constant string :=
      "Saved" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "The document has been saved." &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    integer_3 : constant integer := 1;
    integer_4 : constant integer := 0;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.ndialogTitle, compound_string_1 );
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 2 ), xmdef.nmessageString, compound_string_2 );
    xtr5.setarg( args( 3 ), xmdef.nmessageAlignment, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.ndialogStyle, integer_4 );
    self := Xm1_2_2.CreateMessageDialog(
              parent,
              "saved_dialog",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    xm1_2_2.stringfree( compound_string_2 );
    end;
    xtr5.addcallback( self, Xmdef.NokCallback, dialogs_cb_proc'address, 7 );
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_CANCEL_BUTTON );
    if child_lists( 1 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    boolean_1 : constant boolean := false;
    begin
    xtr5.setarg( args( 1 ), xmdef.nsensitive, boolean_1 );
    XtR5.SetValues( child_lists( 1 )( 1 ), args, 1 );
      null;
    end;
      null;
    end if;
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );
    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    boolean_1 : constant boolean := false;
    begin
    xtr5.setarg( args( 1 ), xmdef.nsensitive, boolean_1 );
    XtR5.SetValues( child_lists( 2 )( 1 ), args, 1 );
      null;
    end;
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
  end kivu_create_saved_dialog;
  function kivu_create_discard_dialog( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 6 );
  begin
    declare
    string_1_1 : constant string :=
      "Unsaved changes" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "The document has been changed." &
      character'val(   0 );
    string_2_2 : constant string :=
      "Discard the changes?" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    compound_string_segment_2 : xm1_2_2.xmstring;
    compound_string_temp_2 : xm1_2_2.xmstring;
    string_3_1 : constant string :=
      "Yes" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    string_4_1 : constant string :=
      "No" &
      character'val(   0 );
    compound_string_4 : xm1_2_2.xmstring;
    integer_5 : constant integer := 2;
    boolean_6 : constant boolean := true;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.ndialogTitle, compound_string_1 );
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   TRUE );
    compound_string_segment_2 :=
      xm1_2_2.stringsegmentcreate( string_2_2,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_temp_2 :=
      xm1_2_2.stringcopy( compound_string_2 );
    xm1_2_2.stringfree( compound_string_2 );
    compound_string_2 :=
      xm1_2_2.stringconcat( compound_string_temp_2,
                            compound_string_segment_2 );
    xm1_2_2.stringfree( compound_string_temp_2 );
    xm1_2_2.stringfree( compound_string_segment_2 );
    xtr5.setarg( args( 2 ), xmdef.nmessageString, compound_string_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.nokLabelString, compound_string_3 );
    compound_string_4 :=
      xm1_2_2.stringsegmentcreate( string_4_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 4 ), xmdef.ncancelLabelString, compound_string_4 );
    xtr5.setarg( args( 5 ), xmdef.ndialogStyle, integer_5 );
    xtr5.setarg( args( 6 ), xmdef.nnoResize, boolean_6 );
    self := Xm1_2_2.CreateQuestionDialog(
              parent,
              "discard_dialog",
              args,
              6 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    xm1_2_2.stringfree( compound_string_2 );
    xm1_2_2.stringfree( compound_string_3 );
    xm1_2_2.stringfree( compound_string_4 );
    end;
    xtr5.addcallback( self, Xmdef.NokCallback, dialogs_cb_proc'address, 8 );
    xtr5.addcallback( self, Xmdef.NcancelCallback, dialogs_cb_proc'address, 9 );
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    if child_lists( 1 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    keysym_1 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'Y' ) );
    begin
    xtr5.setarg( args( 1 ), xmdef.nmnemonic, keysym_1 );
    XtR5.SetValues( child_lists( 1 )( 1 ), args, 1 );
      null;
    end;
      null;
    end if;
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_CANCEL_BUTTON );
    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    keysym_1 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'N' ) );
    begin
    xtr5.setarg( args( 1 ), xmdef.nmnemonic, keysym_1 );
    XtR5.SetValues( child_lists( 2 )( 1 ), args, 1 );
      null;
    end;
      null;
    end if;
    child_lists( 3 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 3 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );
    if child_lists( 3 )( 1 ) /= XtR5.XtNULL then
    xtr5.addcallback( child_lists( 3 )( 1 ), Xmdef.NactivateCallback, dialogs_cb_proc'address, 10 );
    declare
    args : xtr5.arglist( 1 .. 1 );
    keysym_1 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'H' ) );
    begin
    xtr5.setarg( args( 1 ), xmdef.nmnemonic, keysym_1 );
    XtR5.SetValues( child_lists( 3 )( 1 ), args, 1 );
      null;
    end;
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
  end kivu_create_discard_dialog;
  function kivu_create_rename_dialog( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    string_1_1 : constant string :=
      "Rename" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "New name:" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    string_3_1 : constant string :=
      "untitled.txt" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    boolean_4 : constant boolean := false;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.ndialogTitle, compound_string_1 );
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 2 ), xmdef.nselectionLabelString, compound_string_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.ntextString, compound_string_3 );
    xtr5.setarg( args( 4 ), xmdef.nautoUnmanage, boolean_4 );
    self := Xm1_2_2.CreatePromptDialog(
              parent,
              "rename_dialog",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    xm1_2_2.stringfree( compound_string_2 );
    xm1_2_2.stringfree( compound_string_3 );
    end;
    xtr5.addcallback( self, Xmdef.NokCallback, dialogs_cb_proc'address, 11 );
    xtr5.addcallback( self, Xmdef.NcancelCallback, dialogs_cb_proc'address, 12 );
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      Xm1_2_2.SelectionBoxGetChild( self, Xm1_2_2.DIALOG_SELECTION_LABEL );
    if child_lists( 1 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    integer_1 : constant integer := 0;
    begin
    xtr5.setarg( args( 1 ), xmdef.nalignment, integer_1 );
    XtR5.SetValues( child_lists( 1 )( 1 ), args, 1 );
      null;
    end;
      null;
    end if;
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      Xm1_2_2.SelectionBoxGetChild( self, Xm1_2_2.DIALOG_TEXT );
    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then
    xtr5.addcallback( child_lists( 2 )( 1 ), Xmdef.NvalueChangedCallback, dialogs_cb_proc'address, 13 );
    declare
    args : xtr5.arglist( 1 .. 2 );
    integer_1 : constant integer := 40;
    integer_2 : constant integer := 255;
    begin
    xtr5.setarg( args( 1 ), xmdef.ncolumns, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nmaxLength, integer_2 );
    XtR5.SetValues( child_lists( 2 )( 1 ), args, 2 );
      null;
    end;
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
  end kivu_create_rename_dialog;
  function kivu_create_choose_dialog( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 10 );
  begin
    declare
    string_1_1 : constant string :=
      "Open" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "*.txt" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    integer_3 : constant integer := 2;
    boolean_4 : constant boolean := true;
    integer_5 : constant integer := 12;
    string_6_1 : constant string :=
      "Filter" &
      character'val(   0 );
    compound_string_6 : xm1_2_2.xmstring;
    string_7_1 : constant string :=
      "Show:" &
      character'val(   0 );
    compound_string_7 : xm1_2_2.xmstring;
    string_8_1 : constant string :=
      "Folders" &
      character'val(   0 );
    compound_string_8 : xm1_2_2.xmstring;
    string_9_1 : constant string :=
      "Files" &
      character'val(   0 );
    compound_string_9 : xm1_2_2.xmstring;
    string_10_1 : constant string :=
      "[ no such file ]" &
      character'val(   0 );
    compound_string_10 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.ndialogTitle, compound_string_1 );
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 2 ), xmdef.npattern, compound_string_2 );
    xtr5.setarg( args( 3 ), xmdef.nfileTypeMask, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nmustMatch, boolean_4 );
    xtr5.setarg( args( 5 ), xmdef.nlistVisibleItemCount, integer_5 );
    compound_string_6 :=
      xm1_2_2.stringsegmentcreate( string_6_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 6 ), xmdef.napplyLabelString, compound_string_6 );
    compound_string_7 :=
      xm1_2_2.stringsegmentcreate( string_7_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 7 ), xmdef.nfilterLabelString, compound_string_7 );
    compound_string_8 :=
      xm1_2_2.stringsegmentcreate( string_8_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 8 ), xmdef.ndirListLabelString, compound_string_8 );
    compound_string_9 :=
      xm1_2_2.stringsegmentcreate( string_9_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 9 ), xmdef.nfileListLabelString, compound_string_9 );
    compound_string_10 :=
      xm1_2_2.stringsegmentcreate( string_10_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 10 ), xmdef.nnoMatchString, compound_string_10 );
    self := Xm1_2_2.CreateFileSelectionDialog(
              parent,
              "choose_dialog",
              args,
              10 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    xm1_2_2.stringfree( compound_string_2 );
    xm1_2_2.stringfree( compound_string_6 );
    xm1_2_2.stringfree( compound_string_7 );
    xm1_2_2.stringfree( compound_string_8 );
    xm1_2_2.stringfree( compound_string_9 );
    xm1_2_2.stringfree( compound_string_10 );
    end;
    xtr5.addcallback( self, Xmdef.NokCallback, dialogs_cb_proc'address, 14 );
    xtr5.addcallback( self, Xmdef.NcancelCallback, dialogs_cb_proc'address, 15 );
    xtr5.addcallback( self, Xmdef.NnoMatchCallback, dialogs_cb_proc'address, 16 );
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_APPLY_BUTTON );
    if child_lists( 1 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    keysym_1 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'F' ) );
    begin
    xtr5.setarg( args( 1 ), xmdef.nmnemonic, keysym_1 );
    XtR5.SetValues( child_lists( 1 )( 1 ), args, 1 );
      null;
    end;
      null;
    end if;
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_FILTER_TEXT );
    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    integer_1 : constant integer := 1023;
    begin
    xtr5.setarg( args( 1 ), xmdef.nmaxLength, integer_1 );
    XtR5.SetValues( child_lists( 2 )( 1 ), args, 1 );
      null;
    end;
      null;
    end if;
    child_lists( 3 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 3 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );
    if child_lists( 3 )( 1 ) /= XtR5.XtNULL then
    xtr5.addcallback( child_lists( 3 )( 1 ), Xmdef.NactivateCallback, dialogs_cb_proc'address, 17 );
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
  end kivu_create_choose_dialog;
  function kivu_create_print_dialog( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 7 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 8 );
  begin
    declare
    string_1_1 : constant string :=
      "Print" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    boolean_2 : constant boolean := false;
    integer_3 : constant integer := 3;
    integer_4 : constant integer := 8;
    integer_5 : constant integer := 8;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.ndialogTitle, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nautoUnmanage, boolean_2 );
    xtr5.setarg( args( 3 ), xmdef.nfractionBase, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nhorizontalSpacing, integer_4 );
    xtr5.setarg( args( 5 ), xmdef.nverticalSpacing, integer_5 );
    self := Xm1_2_2.CreateFormDialog(
              parent,
              "print_dialog",
              args,
              5 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    child_lists( 1 ) := kivu_create_copies_label( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_copies_field( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_both_sides_toggle( self );
    xtr5.managechild( child_lists( 3 )( 1 ) );
    child_lists( 4 ) := kivu_create_print_separator( self );
    xtr5.managechild( child_lists( 4 )( 1 ) );
    child_lists( 5 ) := kivu_create_print_ok( self );
    xtr5.managechild( child_lists( 5 )( 1 ) );
    child_lists( 6 ) := kivu_create_print_cancel( self );
    xtr5.managechild( child_lists( 6 )( 1 ) );
    child_lists( 7 ) := kivu_create_print_help( self );
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
  end kivu_create_print_dialog;
  function kivu_create_copies_label( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 5 );
  begin
    declare
    string_1_1 : constant string :=
      "Copies:" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    integer_2 : constant integer := 1;
    integer_3 : constant integer := 1;
    integer_4 : constant integer := 4;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.ntopAttachment, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.nleftAttachment, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nbottomAttachment, integer_4 );
    self := Xm1_2_2.CreateLabelGadget(
              parent,
              "copies_label",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_copies_label;
  function kivu_create_copies_field( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 6 );
  begin
    declare
    integer_1 : constant integer := 4;
    integer_2 : constant integer := 3;
    string_3 : constant string :=
      "1" &
      character'val(   0 );
    integer_4 : constant integer := 1;
    integer_5 : constant integer := 3;
    begin
    xtr5.setarg( args( 1 ), xmdef.ncolumns, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nmaxLength, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.nvalue, string_3( string_3'first )'address );
    xtr5.setarg( args( 4 ), xmdef.ntopAttachment, integer_4 );
    xtr5.setarg( args( 5 ), xmdef.nleftAttachment, integer_5 );
    self := Xm1_2_2.CreateTextField(
              parent,
              "copies_field",
              args,
              5 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    xtr5.addcallback( self, Xmdef.NvalueChangedCallback, dialogs_cb_proc'address, 18 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_copies_field;
  function kivu_create_both_sides_toggle( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 5 );
  begin
    declare
    string_1_1 : constant string :=
      "Print on both sides" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    boolean_2 : constant boolean := true;
    integer_3 : constant integer := 3;
    integer_4 : constant integer := 1;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nset, boolean_2 );
    xtr5.setarg( args( 3 ), xmdef.ntopAttachment, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nleftAttachment, integer_4 );
    self := Xm1_2_2.CreateToggleButton(
              parent,
              "both_sides_toggle",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_both_sides_toggle;
  function kivu_create_print_separator( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    integer_1 : constant integer := 3;
    integer_2 : constant integer := 1;
    integer_3 : constant integer := 1;
    begin
    xtr5.setarg( args( 1 ), xmdef.ntopAttachment, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nleftAttachment, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.nrightAttachment, integer_3 );
    self := Xm1_2_2.CreateSeparator(
              parent,
              "print_separator",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_print_separator;
  function kivu_create_print_ok( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 8 );
  begin
    declare
    string_1_1 : constant string :=
      "Print" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    integer_2 : constant integer := 3;
    integer_3 : constant integer := 1;
    integer_4 : constant integer := 5;
    integer_5 : constant integer := 0;
    integer_6 : constant integer := 5;
    integer_7 : constant integer := 1;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.ntopAttachment, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.nbottomAttachment, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nleftAttachment, integer_4 );
    xtr5.setarg( args( 5 ), xmdef.nleftPosition, integer_5 );
    xtr5.setarg( args( 6 ), xmdef.nrightAttachment, integer_6 );
    xtr5.setarg( args( 7 ), xmdef.nrightPosition, integer_7 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "print_ok",
              args,
              7 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, dialogs_cb_proc'address, 19 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_print_ok;
  function kivu_create_print_cancel( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 8 );
  begin
    declare
    string_1_1 : constant string :=
      "Cancel" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    integer_2 : constant integer := 3;
    integer_3 : constant integer := 1;
    integer_4 : constant integer := 5;
    integer_5 : constant integer := 1;
    integer_6 : constant integer := 5;
    integer_7 : constant integer := 2;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.ntopAttachment, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.nbottomAttachment, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nleftAttachment, integer_4 );
    xtr5.setarg( args( 5 ), xmdef.nleftPosition, integer_5 );
    xtr5.setarg( args( 6 ), xmdef.nrightAttachment, integer_6 );
    xtr5.setarg( args( 7 ), xmdef.nrightPosition, integer_7 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "print_cancel",
              args,
              7 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, dialogs_cb_proc'address, 20 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_print_cancel;
  function kivu_create_print_help( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 8 );
  begin
    declare
    string_1_1 : constant string :=
      "Help" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    integer_2 : constant integer := 3;
    integer_3 : constant integer := 1;
    integer_4 : constant integer := 5;
    integer_5 : constant integer := 2;
    integer_6 : constant integer := 5;
    integer_7 : constant integer := 3;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.ntopAttachment, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.nbottomAttachment, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nleftAttachment, integer_4 );
    xtr5.setarg( args( 5 ), xmdef.nleftPosition, integer_5 );
    xtr5.setarg( args( 6 ), xmdef.nrightAttachment, integer_6 );
    xtr5.setarg( args( 7 ), xmdef.nrightPosition, integer_7 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "print_help",
              args,
              7 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, dialogs_cb_proc'address, 21 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_print_help;
  function kivu_create_working_dialog( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    string_1_1 : constant string :=
      "Please wait" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "Reading the file..." &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    string_3_1 : constant string :=
      "Stop" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.ndialogTitle, compound_string_1 );
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 2 ), xmdef.nmessageString, compound_string_2 );
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 3 ), xmdef.ncancelLabelString, compound_string_3 );
    self := Xm1_2_2.CreateWorkingDialog(
              parent,
              "working_dialog",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    xm1_2_2.stringfree( compound_string_2 );
    xm1_2_2.stringfree( compound_string_3 );
    end;
    xtr5.addcallback( self, Xmdef.NcancelCallback, dialogs_cb_proc'address, 22 );
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    if child_lists( 1 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    boolean_1 : constant boolean := false;
    begin
    xtr5.setarg( args( 1 ), xmdef.nsensitive, boolean_1 );
    XtR5.SetValues( child_lists( 1 )( 1 ), args, 1 );
      null;
    end;
      null;
    end if;
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );
    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    boolean_1 : constant boolean := false;
    begin
    xtr5.setarg( args( 1 ), xmdef.nsensitive, boolean_1 );
    XtR5.SetValues( child_lists( 2 )( 1 ), args, 1 );
      null;
    end;
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
  end kivu_create_working_dialog;
  procedure kivu_post_launcher( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 5 );
  begin
    kivu_post_saved_button( widgets( index ), widgets, index + 1 );
    kivu_post_discard_button( widgets( index ), widgets, index + 2 );
    kivu_post_rename_button( widgets( index ), widgets, index + 3 );
    kivu_post_choose_button( widgets( index ), widgets, index + 4 );
    kivu_post_print_button( widgets( index ), widgets, index + 5 );
    kivu_post_working_button( widgets( index ), widgets, index + 6 );
    null;
  end kivu_post_launcher;
  procedure kivu_post_saved_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_saved_button;
  procedure kivu_post_discard_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_discard_button;
  procedure kivu_post_rename_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_rename_button;
  procedure kivu_post_choose_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_choose_button;
  procedure kivu_post_print_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_print_button;
  procedure kivu_post_working_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_working_button;
  procedure kivu_post_saved_dialog( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_CANCEL_BUTTON );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    null;
  end kivu_post_saved_dialog;
  procedure kivu_post_discard_dialog( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 6 );
  begin
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_CANCEL_BUTTON );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    null;
  end kivu_post_discard_dialog;
  procedure kivu_post_rename_dialog( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    auto_child :=
      Xm1_2_2.SelectionBoxGetChild( self, Xm1_2_2.DIALOG_SELECTION_LABEL );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    auto_child :=
      Xm1_2_2.SelectionBoxGetChild( self, Xm1_2_2.DIALOG_TEXT );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 2 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    null;
  end kivu_post_rename_dialog;
  procedure kivu_post_choose_dialog( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 10 );
  begin
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_APPLY_BUTTON );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_FILTER_TEXT );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );
    if auto_child /= XtR5.XtNULL then
      null;
    end if;
    null;
  end kivu_post_choose_dialog;
  procedure kivu_post_print_dialog( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 8 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*print_ok";
    widget_2 : xtr5.widget := xtr5.xtnull;
    widget_string_2 : constant string := "*print_cancel";
    widget_3 : xtr5.widget := xtr5.xtnull;
    widget_string_3 : constant string := "*copies_field";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ndefaultButton, widget_1 );
    widget_2 := xtr5.nametowidget( current_top_level,
                             widget_string_2 );
    xtr5.setarg( args( 2 ), xmdef.ncancelButton, widget_2 );
    widget_3 := xtr5.nametowidget( current_top_level,
                             widget_string_3 );
    xtr5.setarg( args( 3 ), xmdef.ninitialFocus, widget_3 );
    XtR5.SetValues( widgets( index ), args, 3 );
    end;
    kivu_post_copies_label( widgets( index ), widgets, index + 1 );
    kivu_post_copies_field( widgets( index ), widgets, index + 2 );
    kivu_post_both_sides_toggle( widgets( index ), widgets, index + 3 );
    kivu_post_print_separator( widgets( index ), widgets, index + 4 );
    kivu_post_print_ok( widgets( index ), widgets, index + 5 );
    kivu_post_print_cancel( widgets( index ), widgets, index + 6 );
    kivu_post_print_help( widgets( index ), widgets, index + 7 );
    null;
  end kivu_post_print_dialog;
  procedure kivu_post_copies_label( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 5 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*copies_field";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nbottomWidget, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_copies_label;
  procedure kivu_post_copies_field( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 6 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*copies_label";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nleftWidget, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_copies_field;
  procedure kivu_post_both_sides_toggle( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 5 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*copies_field";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ntopWidget, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_both_sides_toggle;
  procedure kivu_post_print_separator( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*both_sides_toggle";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ntopWidget, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_print_separator;
  procedure kivu_post_print_ok( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 8 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*print_separator";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ntopWidget, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_print_ok;
  procedure kivu_post_print_cancel( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 8 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*print_separator";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ntopWidget, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_print_cancel;
  procedure kivu_post_print_help( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 8 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*print_separator";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ntopWidget, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_print_help;
  procedure kivu_post_working_dialog( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    null;
  end kivu_post_working_dialog;
end dialogs_uil;
