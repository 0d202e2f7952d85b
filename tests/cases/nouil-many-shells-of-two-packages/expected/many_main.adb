with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
with a_uil;
with a_uil;
with b_uil;
with a_uil;
with a_uil;
with b_uil;
with a_uil;
with a_uil;
with b_uil;
with a_uil;
with a_uil;
with b_uil;
with a_uil;
with a_uil;
with b_uil;
with a_uil;
with a_uil;
procedure many_main is
  app_class : constant string := "Many_main";
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
  a_uil.AppShell := app_shell;
  a_uil.AppShell := app_shell;
  b_uil.AppShell := app_shell;
  a_uil.AppShell := app_shell;
  a_uil.AppShell := app_shell;
  b_uil.AppShell := app_shell;
  a_uil.AppShell := app_shell;
  a_uil.AppShell := app_shell;
  b_uil.AppShell := app_shell;
  a_uil.AppShell := app_shell;
  a_uil.AppShell := app_shell;
  b_uil.AppShell := app_shell;
  a_uil.AppShell := app_shell;
  a_uil.AppShell := app_shell;
  b_uil.AppShell := app_shell;
  a_uil.AppShell := app_shell;
  a_uil.AppShell := app_shell;
  other_shell := XtR5.CreatePopupShell( "a",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  a_uil.FetchWidget( other_shell,
                          "w1",
                          widgets );
  a_uil.Shells( 1 ) := other_shell;
  a_uil.Child_Lists( 1 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "a",
                                        xtr5.transientshellwidgetclass,
                                        app_shell,
                                        args );
  a_uil.FetchWidget( other_shell,
                          "w2",
                          widgets );
  a_uil.Shells( 2 ) := other_shell;
  a_uil.Child_Lists( 2 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "a",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  a_uil.FetchWidget( other_shell,
                          "w4",
                          widgets );
  a_uil.Shells( 3 ) := other_shell;
  a_uil.Child_Lists( 3 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "a",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  a_uil.FetchWidget( other_shell,
                          "w5",
                          widgets );
  a_uil.Shells( 4 ) := other_shell;
  a_uil.Child_Lists( 4 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "b",
                                        xtr5.transientshellwidgetclass,
                                        app_shell,
                                        args );
  b_uil.FetchWidget( other_shell,
                          "w6",
                          widgets );
  b_uil.Shells( 2 ) := other_shell;
  b_uil.Child_Lists( 2 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "a",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  a_uil.FetchWidget( other_shell,
                          "w8",
                          widgets );
  a_uil.Shells( 6 ) := other_shell;
  a_uil.Child_Lists( 6 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "b",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  b_uil.FetchWidget( other_shell,
                          "w9",
                          widgets );
  b_uil.Shells( 3 ) := other_shell;
  b_uil.Child_Lists( 3 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "a",
                                        xtr5.transientshellwidgetclass,
                                        app_shell,
                                        args );
  a_uil.FetchWidget( other_shell,
                          "w10",
                          widgets );
  a_uil.Shells( 7 ) := other_shell;
  a_uil.Child_Lists( 7 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "b",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  b_uil.FetchWidget( other_shell,
                          "w12",
                          widgets );
  b_uil.Shells( 4 ) := other_shell;
  b_uil.Child_Lists( 4 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "a",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  a_uil.FetchWidget( other_shell,
                          "w13",
                          widgets );
  a_uil.Shells( 9 ) := other_shell;
  a_uil.Child_Lists( 9 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "a",
                                        xtr5.transientshellwidgetclass,
                                        app_shell,
                                        args );
  a_uil.FetchWidget( other_shell,
                          "w14",
                          widgets );
  a_uil.Shells( 10 ) := other_shell;
  a_uil.Child_Lists( 10 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "a",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  a_uil.FetchWidget( other_shell,
                          "w16",
                          widgets );
  a_uil.Shells( 11 ) := other_shell;
  a_uil.Child_Lists( 11 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "a",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  a_uil.FetchWidget( other_shell,
                          "w17",
                          widgets );
  a_uil.Shells( 12 ) := other_shell;
  a_uil.Child_Lists( 12 ) := widgets;
  XtR5.AppMainLoop( app_context );
end many_main;
