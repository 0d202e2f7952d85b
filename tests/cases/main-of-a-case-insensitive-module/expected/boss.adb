with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
with front_uil;
with front_uil;
with front_uil;
with front_uil;
with front_uil;
procedure boss is
  app_class : constant string := "Boss";
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
  front_uil.AppShell := app_shell;
  front_uil.AppShell := app_shell;
  front_uil.AppShell := app_shell;
  front_uil.AppShell := app_shell;
  front_uil.AppShell := app_shell;
  front_uil.Shells( 1 ) := app_shell;
  front_uil.FetchWidget( app_shell,
                          "MAIN",
                          widgets );
  front_uil.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
  other_shell := XtR5.CreatePopupShell( "front",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  front_uil.FetchWidget( other_shell,
                          "elsewhere",
                          widgets );
  front_uil.Shells( 2 ) := other_shell;
  front_uil.Child_Lists( 2 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "Ask_popup",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  front_uil.FetchWidget( other_shell,
                          "Ask",
                          widgets );
  front_uil.Shells( 3 ) := other_shell;
  front_uil.Child_Lists( 3 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "Other_shell",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  front_uil.FetchWidget( other_shell,
                          "Other",
                          widgets );
  front_uil.Shells( 4 ) := other_shell;
  front_uil.Child_Lists( 4 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "Late_shell",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  front_uil.FetchWidget( other_shell,
                          "Late",
                          widgets );
  front_uil.Shells( 5 ) := other_shell;
  front_uil.Child_Lists( 5 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  XtR5.AppMainLoop( app_context );
end boss;
