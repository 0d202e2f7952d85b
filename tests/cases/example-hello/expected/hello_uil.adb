with Xm;
with Xmdef;
with unchecked_deallocation;
with hello_client_data;
use  hello_client_data;
package body hello_uil is
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
  function kivu_create_hello_form( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_greeting_label( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_greet_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_quit_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_hello_form( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_greeting_label( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_greet_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_quit_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "hello_form" then
      widgets := kivu_create_hello_form( parent );
      kivu_post_hello_form( parent, widgets, widgets'first );
    elsif name = "greeting_label" then
      widgets := kivu_create_greeting_label( parent );
      kivu_post_greeting_label( parent, widgets, widgets'first );
    elsif name = "greet_button" then
      widgets := kivu_create_greet_button( parent );
      kivu_post_greet_button( parent, widgets, widgets'first );
    elsif name = "quit_button" then
      widgets := kivu_create_quit_button( parent );
      kivu_post_quit_button( parent, widgets, widgets'first );
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
  function kivu_create_hello_form( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    integer_1 : constant integer := 10;
    integer_2 : constant integer := 10;
    begin
    xtr5.setarg( args( 1 ), xmdef.nhorizontalSpacing, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nverticalSpacing, integer_2 );
    self := Xm1_2_2.CreateForm(
              parent,
              "hello_form",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    child_lists( 1 ) := kivu_create_greeting_label( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_greet_button( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_quit_button( self );
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
  end kivu_create_hello_form;
  function kivu_create_greeting_label( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 4 );
  begin
    declare
    string_1_1 : constant string :=
      "Hello, world" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    integer_2 : constant integer := 1;
    integer_3 : constant integer := 1;
    integer_4 : constant integer := 1;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.ntopAttachment, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.nleftAttachment, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nrightAttachment, integer_4 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "greeting_label",
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
  end kivu_create_greeting_label;
  function kivu_create_greet_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 5 );
  begin
    declare
    string_1_1 : constant string :=
      "Greet" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    integer_2 : constant integer := 3;
    integer_3 : constant integer := 1;
    integer_4 : constant integer := 1;
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
    self := Xm1_2_2.CreatePushButton(
              parent,
              "greet_button",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, hello_cb_proc'address, 1 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_greet_button;
  function kivu_create_quit_button( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 5 );
  begin
    declare
    string_1_1 : constant string :=
      "Quit" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    integer_2 : constant integer := 3;
    integer_3 : constant integer := 1;
    integer_4 : constant integer := 1;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.ntopAttachment, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.nrightAttachment, integer_3 );
    xtr5.setarg( args( 4 ), xmdef.nbottomAttachment, integer_4 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "quit_button",
              args,
              4 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, hello_cb_proc'address, 2 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_quit_button;
  procedure kivu_post_hello_form( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    kivu_post_greeting_label( widgets( index ), widgets, index + 1 );
    kivu_post_greet_button( widgets( index ), widgets, index + 2 );
    kivu_post_quit_button( widgets( index ), widgets, index + 3 );
    null;
  end kivu_post_hello_form;
  procedure kivu_post_greeting_label( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 4 );
  begin
    null;
  end kivu_post_greeting_label;
  procedure kivu_post_greet_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 5 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*greeting_label";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ntopWidget, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_greet_button;
  procedure kivu_post_quit_button( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 5 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*greeting_label";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ntopWidget, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_quit_button;
end hello_uil;
