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
    args : xtr5.arglist( 1 .. 18 );
  begin
    declare
    integer_1 : constant integer := 1;
    integer_2 : constant integer := 2;
    integer_3 : constant integer := 3;
    compound_string_table_4 : xm1_2_2.xmstringlist( 1 .. 3 ) := ( others => xtr5.xtnull );
    string_6_1 : constant string :=
      "six" &
      character'val(   0 );
    compound_string_6 : xm1_2_2.xmstring;
    compound_string_table_7 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    integer_9 : constant integer := 9;
    compound_string_table_10 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    compound_string_table_12 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    compound_string_table_14 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    compound_string_table_16 : xm1_2_2.xmstringlist( 1 .. 2 ) := ( others => xtr5.xtnull );
    integer_18 : constant integer := 0;
    begin
    xtr5.setarg( args( 1 ), xmdef.nwidth, integer_1 );
    xtr5.setarg( args( 2 ), xmdef.nheight, integer_2 );
    xtr5.setarg( args( 3 ), xmdef.nx, integer_3 );
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
    compound_string_table_4( 1 ) := compound_string_1;
    compound_string_2 :=
      xm1_2_2.stringsegmentcreate( string_2_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_4( 2 ) := compound_string_2;
    end;
    xtr5.setarg( args( 4 ), xmdef.nitems, compound_string_table_4( compound_string_table_4'first )'address );
    xtr5.setarg( args( 5 ), xmdef.nitemCount, xtr5.argval( compound_string_table_4'length - 1 ) );
    compound_string_6 :=
      xm1_2_2.stringsegmentcreate( string_6_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    xtr5.setarg( args( 6 ), xmdef.nlabelString, compound_string_6 );
    declare
    string_1_1 : constant string :=
      "two" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_7( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 7 ), xmdef.nselectedItems, compound_string_table_7( compound_string_table_7'first )'address );
    xtr5.setarg( args( 8 ), xmdef.nselectedItemCount, xtr5.argval( compound_string_table_7'length - 1 ) );
    xtr5.setarg( args( 9 ), xmdef.nvisibleItemCount, integer_9 );
    declare
    string_1_1 : constant string :=
      "l" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_10( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 10 ), xmdef.nlistItems, compound_string_table_10( compound_string_table_10'first )'address );
    xtr5.setarg( args( 11 ), xmdef.nlistItemCount, xtr5.argval( compound_string_table_10'length - 1 ) );
    declare
    string_1_1 : constant string :=
      "h" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_12( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 12 ), xmdef.nhistoryItems, compound_string_table_12( compound_string_table_12'first )'address );
    xtr5.setarg( args( 13 ), xmdef.nhistoryItemCount, xtr5.argval( compound_string_table_12'length - 1 ) );
    declare
    string_1_1 : constant string :=
      "d" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_14( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 14 ), xmdef.ndirListItems, compound_string_table_14( compound_string_table_14'first )'address );
    xtr5.setarg( args( 15 ), xmdef.ndirListItemCount, xtr5.argval( compound_string_table_14'length - 1 ) );
    declare
    string_1_1 : constant string :=
      "f" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    begin
    compound_string_1 :=
      xm1_2_2.stringsegmentcreate( string_1_1,
                                   xmdef.FONTLIST_DEFAULT_TAG,
                                   xm1_2_2.STRING_DIRECTION_L_TO_R,
                                   FALSE );
    compound_string_table_16( 1 ) := compound_string_1;
    end;
    xtr5.setarg( args( 16 ), xmdef.nfileListItems, compound_string_table_16( compound_string_table_16'first )'address );
    xtr5.setarg( args( 17 ), xmdef.nfileListItemCount, xtr5.argval( compound_string_table_16'length - 1 ) );
    xtr5.setarg( args( 18 ), xmdef.nborderWidth, integer_18 );
    self := Xm1_2_2.CreateList(
              parent,
              "w",
              args,
              18 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    for index_4 in compound_string_table_4'range loop
      if compound_string_table_4( index_4 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_4( index_4 ) );
      end if;
    end loop;
    xm1_2_2.stringfree( compound_string_6 );
    for index_7 in compound_string_table_7'range loop
      if compound_string_table_7( index_7 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_7( index_7 ) );
      end if;
    end loop;
    for index_10 in compound_string_table_10'range loop
      if compound_string_table_10( index_10 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_10( index_10 ) );
      end if;
    end loop;
    for index_12 in compound_string_table_12'range loop
      if compound_string_table_12( index_12 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_12( index_12 ) );
      end if;
    end loop;
    for index_14 in compound_string_table_14'range loop
      if compound_string_table_14( index_14 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_14( index_14 ) );
      end if;
    end loop;
    for index_16 in compound_string_table_16'range loop
      if compound_string_table_16( index_16 ) /= xtr5.xtnull then
        xm1_2_2.stringfree( compound_string_table_16( index_16 ) );
      end if;
    end loop;
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
    args : xtr5.arglist( 1 .. 18 );
  begin
    null;
  end kivu_post_w;
end m_uil;
