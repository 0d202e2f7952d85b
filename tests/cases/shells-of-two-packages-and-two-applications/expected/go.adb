with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
with m;
with other;
with m;
with m;
with m;
with m;
with m;
procedure go is
  app_class : constant string := "Go";
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
  m.Widgets.AppShell := app_shell;
  other.Widgets.AppShell := app_shell;
  m.Widgets.AppShell := app_shell;
  m.Widgets.AppShell := app_shell;
  m.Widgets.AppShell := app_shell;
  m.Widgets.AppShell := app_shell;
  m.Widgets.AppShell := app_shell;
  other.Widgets.Shells( 1 ) := app_shell;
  other.Widgets.FetchWidget( app_shell,
                          "x",
                          widgets );
  other.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
  other_shell := XtR5.CreatePopupShell( "m_shell",
                                        xtr5.transientshellwidgetclass,
                                        app_shell,
                                        args );
  m.Widgets.FetchWidget( other_shell,
                          "m",
                          widgets );
  m.Widgets.Shells( 1 ) := other_shell;
  m.Widgets.Child_Lists( 1 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "d_popup",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  m.Widgets.FetchWidget( other_shell,
                          "d",
                          widgets );
  m.Widgets.Shells( 3 ) := other_shell;
  m.Widgets.Child_Lists( 3 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "g_shell",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  m.Widgets.FetchWidget( other_shell,
                          "g",
                          widgets );
  m.Widgets.Shells( 4 ) := other_shell;
  m.Widgets.Child_Lists( 4 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "s_shell",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  m.Widgets.FetchWidget( other_shell,
                          "s",
                          widgets );
  m.Widgets.Shells( 6 ) := other_shell;
  m.Widgets.Child_Lists( 6 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  XtR5.AppMainLoop( app_context );
end go;
