with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
with app;
with app;
with app;
procedure app_uil_main is
  app_class : constant string := "App_uil_main";
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
  other_shell := XtR5.CreatePopupShell( "wrong_popup",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  app.Widgets.FetchWidget( other_shell,
                          "wrong",
                          widgets );
  app.Widgets.Shells( 1 ) := other_shell;
  app.Widgets.Child_Lists( 1 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "right_popup",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  app.Widgets.FetchWidget( other_shell,
                          "right",
                          widgets );
  app.Widgets.Shells( 3 ) := other_shell;
  app.Widgets.Child_Lists( 3 ) := widgets;
  XtR5.AppMainLoop( app_context );
end app_uil_main;
pragma Main;
