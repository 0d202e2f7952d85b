with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
with Top;
with menu;
with about;
with tool;
with note;
with extra;
with pop;
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
  Top.Widgets.AppShell := app_shell;
  menu.Widgets.AppShell := app_shell;
  about.Widgets.AppShell := app_shell;
  tool.Widgets.AppShell := app_shell;
  note.Widgets.AppShell := app_shell;
  extra.Widgets.AppShell := app_shell;
  pop.Widgets.AppShell := app_shell;
  Top.Widgets.Shells( 1 ) := app_shell;
  Top.Widgets.FetchWidget( app_shell,
                          "top",
                          widgets );
  Top.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
  other_shell := XtR5.CreatePopupShell( "about_popup",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  about.Widgets.FetchWidget( other_shell,
                          "ABOUT",
                          widgets );
  about.Widgets.Shells( 1 ) := other_shell;
  about.Widgets.Child_Lists( 1 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "tool_shell",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  tool.Widgets.FetchWidget( other_shell,
                          "tool",
                          widgets );
  tool.Widgets.Shells( 1 ) := other_shell;
  tool.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "note_shell",
                                        xtr5.transientshellwidgetclass,
                                        app_shell,
                                        args );
  note.Widgets.FetchWidget( other_shell,
                          "note",
                          widgets );
  note.Widgets.Shells( 1 ) := other_shell;
  note.Widgets.Child_Lists( 1 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "pop_shell",
                                        xm1_2_2.DialogShellwidgetclass,
                                        app_shell,
                                        args );
  pop.Widgets.FetchWidget( other_shell,
                          "pop",
                          widgets );
  pop.Widgets.Shells( 1 ) := other_shell;
  pop.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.AppMainLoop( app_context );
end uil_main;
