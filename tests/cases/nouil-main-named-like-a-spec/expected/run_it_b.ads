with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
with app;
with app;
with app;
procedure run_it is
  app_class : constant string := "Run_it";
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
  app.Widgets.AppShell := app_shell;
  app.Widgets.AppShell := app_shell;
  app.Widgets.AppShell := app_shell;
  app.Widgets.Shells( 1 ) := app_shell;
  app.Widgets.FetchWidget( app_shell,
                          "one",
                          widgets );
  app.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
  other_shell := XtR5.CreatePopupShell( "app",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  app.Widgets.FetchWidget( other_shell,
                          "three",
                          widgets );
  app.Widgets.Shells( 3 ) := other_shell;
  app.Widgets.Child_Lists( 3 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  XtR5.AppMainLoop( app_context );
end run_it;
