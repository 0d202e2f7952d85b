with Xm;
with Xmdef;
with unchecked_deallocation;
with demo_app_client_data;
use  demo_app_client_data;
package body demo_app_uil is
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
  function kivu_create_main( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_bar( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_opener( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_opener_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_anon_xmpushbutton_2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_name_label( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_name_label_2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_choices( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_graph( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_left_frame( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_shared( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_right_frame( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_anon_xmseparator_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_picker( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_picker_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_about( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_about_extra( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_main( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_bar( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_opener( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_opener_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_xmpushbutton_2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_name_label( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_name_label_2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_choices( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_graph( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_left_frame( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_shared( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_right_frame( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_anon_xmseparator_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_picker( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_picker_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_about( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_about_extra( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "main" then
      widgets := kivu_create_main( parent );
      kivu_post_main( parent, widgets, widgets'first );
    elsif name = "about" then
      widgets := kivu_create_about( parent );
      kivu_post_about( parent, widgets, widgets'first );
    elsif name = "bar" then
      widgets := kivu_create_bar( parent );
      kivu_post_bar( parent, widgets, widgets'first );
    elsif name = "Name_Label" then
      widgets := kivu_create_name_label( parent );
      kivu_post_name_label( parent, widgets, widgets'first );
    elsif name = "Name_Label_2" then
      widgets := kivu_create_name_label_2( parent );
      kivu_post_name_label_2( parent, widgets, widgets'first );
    elsif name = "choices" then
      widgets := kivu_create_choices( parent );
      kivu_post_choices( parent, widgets, widgets'first );
    elsif name = "graph" then
      widgets := kivu_create_graph( parent );
      kivu_post_graph( parent, widgets, widgets'first );
    elsif name = "left_frame" then
      widgets := kivu_create_left_frame( parent );
      kivu_post_left_frame( parent, widgets, widgets'first );
    elsif name = "right_frame" then
      widgets := kivu_create_right_frame( parent );
      kivu_post_right_frame( parent, widgets, widgets'first );
    elsif name = "picker" then
      widgets := kivu_create_picker( parent );
      kivu_post_picker( parent, widgets, widgets'first );
    elsif name = "opener" then
      widgets := kivu_create_opener( parent );
      kivu_post_opener( parent, widgets, widgets'first );
    elsif name = "opener_menu" then
      widgets := kivu_create_opener_menu( parent );
      kivu_post_opener_menu( parent, widgets, widgets'first );
    elsif name = "shared" then
      widgets := kivu_create_shared( parent );
      kivu_post_shared( parent, widgets, widgets'first );
    elsif name = "shared" then
      widgets := kivu_create_shared( parent );
      kivu_post_shared( parent, widgets, widgets'first );
    elsif name = "picker_menu" then
      widgets := kivu_create_picker_menu( parent );
      kivu_post_picker_menu( parent, widgets, widgets'first );
    elsif name = "about_extra" then
      widgets := kivu_create_about_extra( parent );
      kivu_post_about_extra( parent, widgets, widgets'first );
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
  function kivu_create_main( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 9 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "main",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NmapCallback, demo_app_cb_proc'address, 1 );
    xtr5.addcallback( self, Xmdef.NmapCallback, demo_app_cb_proc'address, 2 );
    child_lists( 1 ) := kivu_create_bar( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    child_lists( 2 ) := kivu_create_name_label( self );
    xtr5.managechild( child_lists( 2 )( 1 ) );
    child_lists( 3 ) := kivu_create_name_label_2( self );
    child_lists( 4 ) := kivu_create_choices( self );
    xtr5.managechild( child_lists( 4 )( 1 ) );
    child_lists( 5 ) := kivu_create_graph( self );
    xtr5.managechild( child_lists( 5 )( 1 ) );
    child_lists( 6 ) := kivu_create_left_frame( self );
    xtr5.managechild( child_lists( 6 )( 1 ) );
    child_lists( 7 ) := kivu_create_right_frame( self );
    xtr5.managechild( child_lists( 7 )( 1 ) );
    child_lists( 8 ) := kivu_create_anon_xmseparator_1( self );
    xtr5.managechild( child_lists( 8 )( 1 ) );
    child_lists( 9 ) := kivu_create_picker( self );
    xtr5.managechild( child_lists( 9 )( 1 ) );
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
  end kivu_create_main;
  function kivu_create_bar( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateMenuBar(
              parent,
              "bar",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_opener( self );
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
  end kivu_create_bar;
  function kivu_create_opener_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "opener_menu",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_anon_xmpushbutton_2( self );
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
  end kivu_create_opener_menu;
  function kivu_create_anon_xmpushbutton_2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePushButtonGadget(
              parent,
              "anon_XmPushButton_2",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NactivateCallback, demo_app_cb_proc'address, 3 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_anon_xmpushbutton_2;
  function kivu_create_opener( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    child_lists( 1 ) := kivu_create_opener_menu( parent );
    declare
    string_1_1 : constant string :=
      "Open" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateCascadeButton(
              parent,
              "opener",
              args,
              2 );
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
  end kivu_create_opener;
  function kivu_create_name_label( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 3 );
  begin
    declare
    string_1_1 : constant string :=
      "one" &
      character'val(   0 );
    string_1_2 : constant string :=
      "two" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    compound_string_segment_1 : xm1_2_2.xmstring;
    compound_string_temp_1 : xm1_2_2.xmstring;
    integer_2 : constant integer := 100;
    arg_3 : constant string := "demoSize" & ASCII.NUL;
    integer_3 : constant integer := 8;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   TRUE );
    compound_string_segment_1 :=
      xm1_2_2.stringsegmentcreate( string_1_2,
                                   "iso_hebrew",
                                   xm1_2_2.STRING_DIRECTION_R_TO_L,
                                   FALSE );
    compound_string_temp_1 :=
      xm1_2_2.stringcopy( compound_string_1 );
    xm1_2_2.stringfree( compound_string_1 );
    compound_string_1 :=
      xm1_2_2.stringconcat( compound_string_temp_1,
                            compound_string_segment_1 );
    xm1_2_2.stringfree( compound_string_temp_1 );
    xm1_2_2.stringfree( compound_string_segment_1 );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), xmdef.nwidth, integer_2 );
    xtr5.setarg( args( 3 ), arg_3, integer_3 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "Name_Label",
              args,
              3 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    demo_app_cb_proc( self, 5, create_callback_struct'address );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_name_label;
  function kivu_create_name_label_2( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    string_1_1 : constant string :=
      "The title" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "Name_Label_2",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_name_label_2;
  function kivu_create_choices( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 5 );
  begin
    declare
    integer_1 : constant integer := 1;
    integer_2 : constant integer := 2;
    compound_string_table_3 : xm1_2_2.xmstringlist( 1 .. 4 ) := ( others => xtr5.xtnull );
    integer_5 : constant integer := 0;
    begin
    xtr5.setarg( args( 1 ), xmdef.nx, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.ny, integer_2 );
    declare
    string_1_1 : constant string :=
      "red" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    string_2_1 : constant string :=
      "green" &
      character'val(   0 );
    compound_string_2 : xm1_2_2.xmstring;
    string_3_1 : constant string :=
      "blue" &
      character'val(   0 );
    compound_string_3 : xm1_2_2.xmstring;
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
    compound_string_3 :=
      xm1_2_2.stringsegmentcreate( string_3_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_3( 3 ) := compound_string_3;
    end;
    xtr5.setarg( args( 3 ), xmdef.nitems, compound_string_table_3( compound_string_table_3'first )'address );
    xtr5.setarg( args( 4 ), xmdef.nitemCount, xtr5.argval( compound_string_table_3'length - 1 ) );
    xtr5.setarg( args( 5 ), xmdef.nselectionPolicy, integer_5 );
    self := Xm1_2_2.CreateList(
              parent,
              "choices",
              args,
              5 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    for index_3 in compound_string_table_3'range loop
      if compound_string_table_3( index_3 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_3( index_3 ) );
      end if;
    end loop;
    end;
    xtr5.addcallback( self, Xmdef.NsingleSelectionCallback, demo_app_cb_proc'address, 6 );
    xtr5.addcallback( self, arg_7, demo_app_cb_proc'address, 7 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_choices;
  function kivu_create_graph( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    arg_1 : constant string := "demoSize" & ASCII.NUL;
    integer_1 : constant integer := 3;
    boolean_2 : constant boolean := false;
    begin
    xtr5.setarg( args( 1 ), arg_1, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nsensitive, boolean_2 );
    self := make_graph(
              parent,
              "graph",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    xtr5.addcallback( self, Xmdef.NinputCallback, demo_app_cb_proc'address, 8 );
    xtr5.addcallback( self, Xmdef.NinputCallback, demo_app_cb_proc'address, 9 );
    xtr5.addcallback( self, Xmdef.NinputCallback, demo_app_cb_proc'address, 10 );
    xtr5.addcallback( self, Xmdef.NinputCallback, demo_app_cb_proc'address, 11 );
    xtr5.addcallback( self, arg_12, demo_app_cb_proc'address, 12 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_graph;
  function kivu_create_left_frame( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateFrame(
              parent,
              "left_frame",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_shared( self );
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
  end kivu_create_left_frame;
  function kivu_create_shared( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    self := Xm1_2_2.CreatePushButton(
              parent,
              "shared",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NactivateCallback, demo_app_cb_proc'address, 14 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_shared;
  function kivu_create_right_frame( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateFrame(
              parent,
              "right_frame",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_shared( self );
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
  end kivu_create_right_frame;
  function kivu_create_anon_xmseparator_1( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    integer_1 : constant integer := 1;
    integer_2 : constant integer := 2;
    begin
    xtr5.setarg( args( 1 ), xmdef.nx, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.ny, integer_2 );
    self := Xm1_2_2.CreateSeparatorGadget(
              parent,
              "anon_XmSeparator_1",
              args,
              2 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_anon_xmseparator_1;
  function kivu_create_picker_menu( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePulldownMenu(
              parent,
              "picker_menu",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_picker_menu;
  function kivu_create_picker( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 2 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    child_lists( 1 ) := kivu_create_picker_menu( parent );
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_OptionLabel" );
    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 1 );
    string_1_1 : constant string :=
      "Pick" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    XtR5.SetValues( child_lists( 2 )( 1 ), args, 1 );
    xm1_2_2.stringfree( compound_string_1 );
      null;
    end;
      null;
    end if;
    xtr5.setarg( args( 1 ),
                 xmdef.nsubmenuid,
                 child_lists( 1 )( 1 ) );
    self := Xm1_2_2.CreateOptionMenu(
              parent,
              "picker",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
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
  end kivu_create_picker;
  function kivu_create_about( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 3 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    self := Xm1_2_2.CreateMessageDialog(
              parent,
              "about",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    if child_lists( 1 )( 1 ) /= XtR5.XtNULL then
    xtr5.addcallback( child_lists( 1 )( 1 ), Xmdef.NactivateCallback, demo_app_cb_proc'address, 15 );
    declare
    args : xtr5.arglist( 1 .. 2 );
    string_1_1 : constant string :=
      "Yes" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    arg_2 : constant string := "demoSize" & ASCII.NUL;
    integer_2 : constant integer := 4;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 1 ), xmdef.nlabelString, compound_string_1 );
    xtr5.setarg( args( 2 ), arg_2, integer_2 );
    XtR5.SetValues( child_lists( 1 )( 1 ), args, 2 );
    xm1_2_2.stringfree( compound_string_1 );
      null;
    end;
      null;
    end if;
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );
    child_lists( 3 ) := kivu_create_about_extra( self );
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
  end kivu_create_about;
  function kivu_create_about_extra( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreatePushButton(
              parent,
              "about_extra",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xtr5.addcallback( self, Xmdef.NactivateCallback, demo_app_cb_proc'address, 16 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_about_extra;
  procedure kivu_post_main( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_bar( widgets( index ), widgets, index + 1 );
    kivu_post_name_label( widgets( index ), widgets, index + 5 );
    kivu_post_name_label_2( widgets( index ), widgets, index + 6 );
    kivu_post_choices( widgets( index ), widgets, index + 7 );
    kivu_post_graph( widgets( index ), widgets, index + 8 );
    kivu_post_left_frame( widgets( index ), widgets, index + 9 );
    kivu_post_right_frame( widgets( index ), widgets, index + 11 );
    kivu_post_anon_xmseparator_1( widgets( index ), widgets, index + 13 );
    kivu_post_picker( widgets( index ), widgets, index + 14 );
    null;
  end kivu_post_main;
  procedure kivu_post_bar( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_opener( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_bar;
  procedure kivu_post_opener_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_anon_xmpushbutton_2( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_opener_menu;
  procedure kivu_post_anon_xmpushbutton_2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_anon_xmpushbutton_2;
  procedure kivu_post_opener( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    kivu_post_opener_menu( widgets( index ), widgets, index + 1 );
    widget_4 := xtr5.nametowidget( current_top_level,
                             widget_string_4 );
    xtr5.addcallback( widgets( index ), Xmdef.NcascadingCallback, demo_app_cb_proc'address, 4 );
    null;
  end kivu_post_opener;
  procedure kivu_post_name_label( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 3 );
  begin
    null;
  end kivu_post_name_label;
  procedure kivu_post_name_label_2( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*Name_Label";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nleftWidget, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    null;
  end kivu_post_name_label_2;
  procedure kivu_post_choices( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 5 );
  begin
    null;
  end kivu_post_choices;
  procedure kivu_post_graph( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    null;
  end kivu_post_graph;
  procedure kivu_post_left_frame( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_shared( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_left_frame;
  procedure kivu_post_shared( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*choices";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.nrightWidget, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    widget_13 := xtr5.nametowidget( current_top_level,
                             widget_string_13 );
    xtr5.addcallback( widgets( index ), Xmdef.NactivateCallback, demo_app_cb_proc'address, 13 );
    null;
  end kivu_post_shared;
  procedure kivu_post_right_frame( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_shared( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_right_frame;
  procedure kivu_post_anon_xmseparator_1( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 2 );
  begin
    null;
  end kivu_post_anon_xmseparator_1;
  procedure kivu_post_picker_menu( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_picker_menu;
  procedure kivu_post_picker( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    kivu_post_picker_menu( widgets( index ), widgets, index + 1 );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_OptionLabel" );
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
  end kivu_post_picker;
  procedure kivu_post_about( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*about_extra";
    begin
    widget_1 := xtr5.nametowidget( current_top_level,
                             widget_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ndefaultButton, widget_1 );
    XtR5.SetValues( widgets( index ), args, 1 );
    end;
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    if auto_child /= XtR5.XtNULL then
    declare
    args : xtr5.arglist( 1 .. 2 );
    begin
    XtR5.SetValues( auto_child, args, 0 );
      null;
    end;
      null;
    end if;
    auto_child :=
      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );
    kivu_post_about_extra( widgets( index ), widgets, index + 3 );
    null;
  end kivu_post_about;
  procedure kivu_post_about_extra( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    null;
  end kivu_post_about_extra;
end demo_app_uil;
