with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
with one;
with two;
with ONE;
with two;
with one;
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
  one.Widgets.AppShell := app_shell;
  two.Widgets.AppShell := app_shell;
  ONE.Widgets.AppShell := app_shell;
  two.Widgets.AppShell := app_shell;
  one.Widgets.AppShell := app_shell;
  two.Widgets.Shells( 1 ) := app_shell;
  two.Widgets.FetchWidget( app_shell,
                          "b",
                          widgets );
  two.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
  other_shell := XtR5.CreatePopupShell( "one",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  one.Widgets.FetchWidget( other_shell,
                          "a",
                          widgets );
  one.Widgets.Shells( 1 ) := other_shell;
  one.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "ONE",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  ONE.Widgets.FetchWidget( other_shell,
                          "c",
                          widgets );
  ONE.Widgets.Shells( 2 ) := other_shell;
  ONE.Widgets.Child_Lists( 2 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "two",
                                        xtr5.transientshellwidgetclass,
                                        app_shell,
                                        args );
  two.Widgets.FetchWidget( other_shell,
                          "d",
                          widgets );
  two.Widgets.Shells( 2 ) := other_shell;
  two.Widgets.Child_Lists( 2 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "one",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  one.Widgets.FetchWidget( other_shell,
                          "e",
                          widgets );
  one.Widgets.Shells( 3 ) := other_shell;
  one.Widgets.Child_Lists( 3 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  XtR5.AppMainLoop( app_context );
end uil_main;
