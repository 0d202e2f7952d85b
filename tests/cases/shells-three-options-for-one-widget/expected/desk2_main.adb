with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
with desk2;
with desk2;
with window;
with desk2;
procedure desk2_main is
  app_class : constant string := "Desk2_main";
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
  desk2.Widgets.AppShell := app_shell;
  desk2.Widgets.AppShell := app_shell;
  window.Widgets.AppShell := app_shell;
  desk2.Widgets.AppShell := app_shell;
  desk2.Widgets.Shells( 3 ) := app_shell;
  desk2.Widgets.FetchWidget( app_shell,
                          "aside",
                          widgets );
  desk2.Widgets.Child_Lists( 3 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
  other_shell := XtR5.CreatePopupShell( "desk2",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  desk2.Widgets.FetchWidget( other_shell,
                          "window",
                          widgets );
  desk2.Widgets.Shells( 1 ) := other_shell;
  desk2.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "desk2",
                                        xtr5.transientshellwidgetclass,
                                        app_shell,
                                        args );
  desk2.Widgets.FetchWidget( other_shell,
                          "window",
                          widgets );
  desk2.Widgets.Shells( 2 ) := other_shell;
  desk2.Widgets.Child_Lists( 2 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "window_popup",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  window.Widgets.FetchWidget( other_shell,
                          "window",
                          widgets );
  window.Widgets.Shells( 1 ) := other_shell;
  window.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.AppMainLoop( app_context );
end desk2_main;
