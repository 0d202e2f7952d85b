with Xm;
with Xmdef;
with unchecked_deallocation;
with m_client_data;
use  m_client_data;
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
    args : xtr5.arglist( 1 .. 7 );
  begin
    declare
    arg_1 : constant xmdef.argname :=
        xmdef.argname( string'( "ownResource1" ) & ASCII.NUL );
    boolean_1 : constant boolean := true;
    arg_2 : constant xmdef.argname :=
        xmdef.argname( string'( "ownResource2" ) & ASCII.NUL );
    integer_2 : constant integer := 5;
    arg_3 : constant xmdef.argname :=
        xmdef.argname( string'( "ownResource3" ) & ASCII.NUL );
    single_float_3 : constant xlib5.real := 1.500000E+00;
    arg_4 : constant xmdef.argname :=
        xmdef.argname( string'( "ownResource4" ) & ASCII.NUL );
    float_4 : constant xtr5.double := 1.500000000000000E+00;
    arg_5 : constant xmdef.argname :=
        xmdef.argname( string'( "ownResource5" ) & ASCII.NUL );
    class_rec_name_5 : constant xtr5.widgetclass := xm1_2_2.Labelwidgetclass;
    arg_6 : constant xmdef.argname :=
        xmdef.argname( string'( "ownResource6" ) & ASCII.NUL );
    keysym_6 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'a' ) );
    arg_7 : constant xmdef.argname :=
        xmdef.argname( string'( "ownResource7" ) & ASCII.NUL );
    integer_table_7 : constant xlibr5.intlist( 1 .. 2 ) := (
        1 => 1,
        2 => 2 );
    begin
    xtr5.setarg( args( 1 ), arg_1, boolean_1 );
    xtr5.setarg( args( 2 ), arg_2, integer_2 );
    xtr5.setarg( args( 3 ), arg_3, single_float_3'address );
    xtr5.setarg( args( 4 ), arg_4, float_4'address );
    xtr5.setarg( args( 5 ), arg_5, class_rec_name_5 );
    xtr5.setarg( args( 6 ), arg_6, keysym_6 );
    xtr5.setarg( args( 7 ), arg_7, integer_table_7( integer_table_7'first )'address );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "w",
              args,
              7 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    xtr5.addcallback( self, arg_1, m_cb_proc'address, 1 );
    xtr5.addcallback( self, arg_2, m_cb_proc'address, 2 );
    xtr5.addcallback( self, arg_3, m_cb_proc'address, 3 );
    xtr5.addcallback( self, arg_4, m_cb_proc'address, 4 );
    xtr5.addcallback( self, arg_5, m_cb_proc'address, 5 );
    xtr5.addcallback( self, arg_6, m_cb_proc'address, 6 );
    xtr5.addcallback( self, arg_7, m_cb_proc'address, 7 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_w;
  procedure kivu_post_w( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 7 );
  begin
    null;
  end kivu_post_w;
end m_uil;
