with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
with Desk;
with desk;
with DESK;
with other;
with desk;
procedure desk_main is
  app_class : constant string := "Desk_main";
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
  Desk.Widgets.AppShell := app_shell;
  desk.Widgets.AppShell := app_shell;
  DESK.Widgets.AppShell := app_shell;
  other.Widgets.AppShell := app_shell;
  desk.Widgets.AppShell := app_shell;
  Desk.Widgets.Shells( 1 ) := app_shell;
  Desk.Widgets.FetchWidget( app_shell,
                          "main",
                          widgets );
  Desk.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
  other_shell := XtR5.CreatePopupShell( "desk",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  desk.Widgets.FetchWidget( other_shell,
                          "tools",
                          widgets );
  desk.Widgets.Shells( 2 ) := other_shell;
  desk.Widgets.Child_Lists( 2 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "other",
                                        xtr5.transientshellwidgetclass,
                                        app_shell,
                                        args );
  other.Widgets.FetchWidget( other_shell,
                          "desk",
                          widgets );
  other.Widgets.Shells( 1 ) := other_shell;
  other.Widgets.Child_Lists( 1 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "desk",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  desk.Widgets.FetchWidget( other_shell,
                          "ask",
                          widgets );
  desk.Widgets.Shells( 4 ) := other_shell;
  desk.Widgets.Child_Lists( 4 ) := widgets;
  XtR5.AppMainLoop( app_context );
end desk_main;
