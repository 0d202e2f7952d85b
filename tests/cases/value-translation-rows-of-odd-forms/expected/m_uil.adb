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
    args : xtr5.arglist( 1 .. 5 );
  begin
    declare
    translation_table_1 : xtr5.translations;
    translation_table_string_1 : constant string :=
        "<Key>a: b()" & ASCII.LF &
        "" & ASCII.LF &
        "say("x")" & ASCII.LF &
        "a
b" & ASCII.LF &
        "#override" & ASCII.LF &
        "\n" & ASCII.LF &
        "	tab" & ASCII.LF );
    translation_table_2 : xtr5.translations;
    translation_table_string_2 : constant string :=
        "" & ASCII.LF );
    translation_table_3 : xtr5.translations;
    translation_table_string_3 : constant string :=
        "r" & ASCII.LF &
        "rr" & ASCII.LF );
    arg_4 : constant string := "own" & ASCII.NUL;
    translation_table_4 : xtr5.translations;
    translation_table_string_4 : constant string :=
        "r" & ASCII.LF &
        "rr" & ASCII.LF );
    translation_table_5 : xtr5.translations;
    translation_table_string_5 : constant string :=
        "" & ASCII.LF &
        "" & ASCII.LF );
    begin
    translation_table_1 :=
      xtr5.parsetranslationtable( translation_table_string_1 );
    xtr5.setarg( args( 1 ), xmdef.ntranslations, translation_table_1 );
    translation_table_2 :=
      xtr5.parsetranslationtable( translation_table_string_2 );
    xtr5.setarg( args( 2 ), xmdef.naccelerators, translation_table_2 );
    translation_table_3 :=
      xtr5.parsetranslationtable( translation_table_string_3 );
    xtr5.setarg( args( 3 ), xmdef.ntextTranslations, translation_table_3 );
    translation_table_4 :=
      xtr5.parsetranslationtable( translation_table_string_4 );
    xtr5.setarg( args( 4 ), arg_4, translation_table_4 );
    translation_table_5 :=
      xtr5.parsetranslationtable( translation_table_string_5 );
    xtr5.setarg( args( 5 ), xmdef.nuserData, translation_table_5 );
    self := Xm1_2_2.CreateLabel(
              parent,
              "l",
              args,
              5 );
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
    args : xtr5.arglist( 1 .. 5 );
  begin
    null;
  end kivu_post_l;
end m_uil;
