with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
with demo;
with demo;
with demo;
with demo;
procedure uil_main is
  app_class : constant string := "Uil_main";
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
  demo.Widgets.AppShell := app_shell;
  demo.Widgets.AppShell := app_shell;
  demo.Widgets.AppShell := app_shell;
  demo.Widgets.AppShell := app_shell;
  demo.Widgets.Shells( 1 ) := app_shell;
  demo.Widgets.FetchWidget( app_shell,
                          "top",
                          widgets );
  demo.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
  other_shell := XtR5.CreatePopupShell( "demo",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  demo.Widgets.FetchWidget( other_shell,
                          "tool",
                          widgets );
  demo.Widgets.Shells( 2 ) := other_shell;
  demo.Widgets.Child_Lists( 2 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "demo",
                                        xtr5.transientshellwidgetclass,
                                        app_shell,
                                        args );
  demo.Widgets.FetchWidget( other_shell,
                          "note",
                          widgets );
  demo.Widgets.Shells( 3 ) := other_shell;
  demo.Widgets.Child_Lists( 3 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "demo",
                                        xm1_2_2.DIALOGSHELLwidgetclass,
                                        app_shell,
                                        args );
  demo.Widgets.FetchWidget( other_shell,
                          "about",
                          widgets );
  demo.Widgets.Shells( 4 ) := other_shell;
  demo.Widgets.Child_Lists( 4 ) := widgets;
  XtR5.AppMainLoop( app_context );
end uil_main;
