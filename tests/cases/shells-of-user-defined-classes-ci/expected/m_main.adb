with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
with m;
with m;
with m;
with m;
with m;
with m;
with m;
with m;
with m;
with m;
procedure m_main is
  app_class : constant string := "M_main";
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
  m.Widgets.AppShell := app_shell;
  m.Widgets.AppShell := app_shell;
  m.Widgets.AppShell := app_shell;
  m.Widgets.AppShell := app_shell;
  m.Widgets.AppShell := app_shell;
  m.Widgets.AppShell := app_shell;
  m.Widgets.AppShell := app_shell;
  m.Widgets.AppShell := app_shell;
  m.Widgets.AppShell := app_shell;
  m.Widgets.Shells( 1 ) := app_shell;
  m.Widgets.FetchWidget( app_shell,
                          "w1",
                          widgets );
  m.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
  other_shell := XtR5.CreatePopupShell( "w2_shell",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  m.Widgets.FetchWidget( other_shell,
                          "w2",
                          widgets );
  m.Widgets.Shells( 2 ) := other_shell;
  m.Widgets.Child_Lists( 2 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "w3_shell",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  m.Widgets.FetchWidget( other_shell,
                          "w3",
                          widgets );
  m.Widgets.Shells( 3 ) := other_shell;
  m.Widgets.Child_Lists( 3 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "w4_popup",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  m.Widgets.FetchWidget( other_shell,
                          "w4",
                          widgets );
  m.Widgets.Shells( 4 ) := other_shell;
  m.Widgets.Child_Lists( 4 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "w7_popup",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  m.Widgets.FetchWidget( other_shell,
                          "w7",
                          widgets );
  m.Widgets.Shells( 7 ) := other_shell;
  m.Widgets.Child_Lists( 7 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "w10_shell",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  m.Widgets.FetchWidget( other_shell,
                          "w10",
                          widgets );
  m.Widgets.Shells( 10 ) := other_shell;
  m.Widgets.Child_Lists( 10 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  XtR5.AppMainLoop( app_context );
end m_main;
