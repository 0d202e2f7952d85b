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
  function kivu_create_w( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_w( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "w" then
      widgets := kivu_create_w( parent );
      kivu_post_w( parent, widgets, widgets'first );
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
  function kivu_create_w( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 8 );
  begin
    declare
    string_1 : constant string :=
      "caf" &
      '~' &
      "s" &
      character'val(   0 );
    string_2 : constant string :=
      '~' &
      '~' &
      character'val(   0 );
    string_3_1 : constant string :=
      '~' &
      character'val(   0 );
    string_3_2 : constant string :=
      "b" &
      character'val(   0 );
    asciz_string_table_3 : constant xlibr5.stringlist( 1 .. 3 ) := (
        1 => string_3_1( string_3_1'first )'address,
        2 => string_3_2( string_3_2'first )'address,
        3 => xtr5.xtnull );
    string_4_1 : constant string :=
      '~' &
      character'val(   0 );
    compound_string_4 : xm1_2_2.xmstring;
    compound_string_table_5 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    font_7 : xlibr5.fontstruct_ptr;
    font_string_7 : constant string :=
      '~' &
      character'val(   0 );
    font_display_7 : xlibr5.display;
    begin
    xtr5.setarg( args( 1 ), xmdef.nuserData, string_1( string_1'first )'address );
    xtr5.setarg( args( 2 ), xmdef.nuserData, string_2( string_2'first )'address );
    xtr5.setarg( args( 3 ), xmdef.nuserData, asciz_string_table_3( asciz_string_table_3'first )'address );
    compound_string_4 :=
      xm1_2_2.stringsegmentcreate( string_4_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 4 ), xmdef.nlabelString, compound_string_4 );
    declare
    string_1_1 : constant string :=
      "a" &
      '~' &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_5( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 5 ), xmdef.nitems, compound_string_table_5( compound_string_table_5'first )'address );
    xtr5.setarg( args( 6 ), xmdef.nitemCount, xtr5.argval( compound_string_table_5'length - 1 ) );
    font_display_7 := XtR5.DisplayOfObject( parent );
    font_7 := xlibr5.loadqueryfont( font_display_7,
                                font_string_7 );
    xtr5.setarg( args( 7 ), xmdef.nuserData, font_7 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "w",
              args,
              7 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    xm1_2_2.stringfree( compound_string_4 );
    for index_5 in compound_string_table_5'range loop
      if compound_string_table_5( index_5 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_5( index_5 ) );
      end if;
    end loop;
    end;
    declare
    color_1 : xlibr5.pixel;
    string_1 : constant string :=
      '~' &
      character'val(   0 );
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
    xtr5.setarg( args( 1 ), xmdef.nbackground, color_1 );
    XtR5.SetValues( self, args, 1 );
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_w;
  procedure kivu_post_w( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 8 );
  begin
    null;
  end kivu_post_w;
end m_uil;
