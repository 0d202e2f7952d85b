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
  function kivu_create_top( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "top" then
      widgets := kivu_create_top( parent );
      kivu_post_top( parent, widgets, widgets'first );
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
  function kivu_create_top( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 25 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateFileSelectionBox(
              parent,
              "top",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 1 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_APPLY_BUTTON );
    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 2 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_CANCEL_BUTTON );
    child_lists( 3 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 3 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_DIR_LIST_LABEL );
    child_lists( 4 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 4 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_DIR_LIST );
    child_lists( 5 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 5 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_APPLY_BUTTON );
    child_lists( 6 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 6 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_FILTER_LABEL );
    child_lists( 7 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 7 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_FILTER_TEXT );
    child_lists( 8 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 8 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );
    child_lists( 9 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 9 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_HorScrollBar" );
    child_lists( 10 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 10 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_LIST_LABEL );
    child_lists( 11 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 11 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_LIST );
    child_lists( 12 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 12 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_MESSAGE_LABEL );
    child_lists( 13 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 13 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    child_lists( 14 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 14 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_OptionButton" );
    child_lists( 15 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 15 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_OptionLabel" );
    child_lists( 16 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 16 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_SELECTION_LABEL );
    child_lists( 17 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 17 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_SEPARATOR );
    child_lists( 18 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 18 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_Separator1" );
    child_lists( 19 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 19 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_Separator2" );
    child_lists( 20 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 20 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_Separator3" );
    child_lists( 21 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 21 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_SYMBOL_LABEL );
    child_lists( 22 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 22 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_TearOffControl" );
    child_lists( 23 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 23 )( 1 ) :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_TEXT );
    child_lists( 24 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 24 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_Title" );
    child_lists( 25 ) := new xtr5.widgetlist( 1 .. 1 );
    child_lists( 25 )( 1 ) :=
      XtR5.NameToWidget( self, "*Xm_VertScrollBar" );
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
  end kivu_create_top;
  procedure kivu_post_top( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_APPLY_BUTTON );
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_CANCEL_BUTTON );
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_DIR_LIST_LABEL );
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_DIR_LIST );
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_APPLY_BUTTON );
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_FILTER_LABEL );
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_FILTER_TEXT );
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_HorScrollBar" );
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_LIST_LABEL );
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_LIST );
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_MESSAGE_LABEL );
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_OptionButton" );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_OptionLabel" );
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_SELECTION_LABEL );
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_SEPARATOR );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_Separator1" );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_Separator2" );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_Separator3" );
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_SYMBOL_LABEL );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_TearOffControl" );
    auto_child :=
      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_TEXT );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_Title" );
    auto_child :=
      XtR5.NameToWidget( self, "*Xm_VertScrollBar" );
    null;
  end kivu_post_top;
end m_uil;
