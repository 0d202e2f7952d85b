with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
with away;
with here;
with tables;
with far;
procedure tables_main is
  app_class : constant string := "Tables_main";
  argv        : xlibr5.stringlist_ptr := xlibr5.getarguments;
  app_context : xtr5.appcontext;
  options     : xrmr5.optiondesclist( 1 .. 0 );
  fallback    : xlibr5.stringlist( 1 .. 0 );
  args        : xtr5.arglist( 1 .. 0 );
  app_shell   : xtr5.widget;
  langproc    : xtr5.languageproc;
  widgets     : xtr5.widgetlist_ptr;
  other_shell : xtr5.widget;
begin
  langproc := XtR5.SetLanguageProc(
      XtR5.AppContext( XtR5.XtNULL ),
      XtR5.XtNULL,
      XtR5.XtNULL );
  XtR5.AppInitialize( app_context,
                      app_class,
                      options,
                      argv,
                      fallback,
                      args,
                      app_shell );
  away.Widgets.AppShell := app_shell;
  here.Widgets.AppShell := app_shell;
  tables.Widgets.AppShell := app_shell;
  far.Widgets.AppShell := app_shell;
  here.Widgets.Shells( 1 ) := app_shell;
  here.Widgets.FetchWidget( app_shell,
                          "Here",
                          widgets );
  here.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
  other_shell := XtR5.CreatePopupShell( "away",
                                        xtr5.transientshellwidgetclass,
                                        app_shell,
                                        args );
  away.Widgets.FetchWidget( other_shell,
                          "far",
                          widgets );
  away.Widgets.Shells( 1 ) := other_shell;
  away.Widgets.Child_Lists( 1 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "far",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  far.Widgets.FetchWidget( other_shell,
                          "tables",
                          widgets );
  far.Widgets.Shells( 1 ) := other_shell;
  far.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.AppMainLoop( app_context );
end tables_main;
