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
  function kivu_create_l( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_l( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "l" then
      widgets := kivu_create_l( parent );
      kivu_post_l( parent, widgets, widgets'first );
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
  function kivu_create_l( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 12 );
  begin
    declare
    keysym_1 : constant xlibr5.keysym := xlibr5.keysym( character'pos( ''' ) );
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( '"' ) );
    arg_3 : constant string := "own" & ASCII.NUL;
    keysym_3 : constant xlibr5.keysym := XK.K_ab;
    keysym_4 : constant xlibr5.keysym := XK.K_;
    keysym_5 : constant xlibr5.keysym := xlibr5.keysym( character'pos( ' ' ) );
    arg_6 : constant string := "own" & ASCII.NUL;
    keysym_6 : constant xlibr5.keysym := xlibr5.keysym( character'pos( '
' ) );
    keysym_7 : constant xlibr5.keysym := XK.K_XK_a;
    keysym_8 : constant xlibr5.keysym := XK.K_a b;
    arg_9 : constant string := "own" & ASCII.NUL;
    keysym_9 : constant xlibr5.keysym := xlibr5.keysym( character'pos( '\' ) );
    keysym_10 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'a' ) );
    keysym_11 : constant xlibr5.keysym := XK.K_ab;
    arg_12 : constant string := "own" & ASCII.NUL;
    keysym_12 : constant xlibr5.keysym := xlibr5.keysym( character'pos( '' ) );
    begin
    xtr5.setarg( args( 1 ), xmdef.nmnemonic, keysym_1 );
    xtr5.setarg( args( 2 ), xmdef.nuserData, keysym_2 );
    xtr5.setarg( args( 3 ), arg_3, keysym_3 );
    xtr5.setarg( args( 4 ), xmdef.nmnemonic, keysym_4 );
    xtr5.setarg( args( 5 ), xmdef.nuserData, keysym_5 );
    xtr5.setarg( args( 6 ), arg_6, keysym_6 );
    xtr5.setarg( args( 7 ), xmdef.nmnemonic, keysym_7 );
    xtr5.setarg( args( 8 ), xmdef.nuserData, keysym_8 );
    xtr5.setarg( args( 9 ), arg_9, keysym_9 );
    xtr5.setarg( args( 10 ), xmdef.nmnemonic, keysym_10 );
    xtr5.setarg( args( 11 ), xmdef.nuserData, keysym_11 );
    xtr5.setarg( args( 12 ), arg_12, keysym_12 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              12 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_l;
  procedure kivu_post_l( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 12 );
  begin
    null;
  end kivu_post_l;
end m_uil;
