with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
with Alpha_Two;
with Beta_Two;
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
  Alpha_Two.Widgets.AppShell := app_shell;
  Beta_Two.Widgets.AppShell := app_shell;
  other_shell := XtR5.CreatePopupShell( "Alpha_shell",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  Alpha_Two.Widgets.FetchWidget( other_shell,
                          "Alpha",
                          widgets );
  Alpha_Two.Widgets.Shells( 1 ) := other_shell;
  Alpha_Two.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "Beta_shell",
                                        xm1_2_2.DialogShellwidgetclass,
                                        app_shell,
                                        args );
  Beta_Two.Widgets.FetchWidget( other_shell,
                          "beta",
                          widgets );
  Beta_Two.Widgets.Shells( 1 ) := other_shell;
  Beta_Two.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.AppMainLoop( app_context );
end go;
pragma Main;
