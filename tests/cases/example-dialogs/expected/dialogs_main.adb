with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
with dialogs;
with dialogs;
with dialogs;
with dialogs;
with dialogs;
with dialogs;
with dialogs;
procedure dialogs_main is
  app_class : constant string := "Dialogs_main";
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
  dialogs.Widgets.AppShell := app_shell;
  dialogs.Widgets.AppShell := app_shell;
  dialogs.Widgets.AppShell := app_shell;
  dialogs.Widgets.AppShell := app_shell;
  dialogs.Widgets.AppShell := app_shell;
  dialogs.Widgets.AppShell := app_shell;
  dialogs.Widgets.AppShell := app_shell;
  dialogs.Widgets.Shells( 1 ) := app_shell;
  dialogs.Widgets.FetchWidget( app_shell,
                          "launcher",
                          widgets );
  dialogs.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
  other_shell := XtR5.CreatePopupShell( "saved_dialog_popup",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  dialogs.Widgets.FetchWidget( other_shell,
                          "saved_dialog",
                          widgets );
  dialogs.Widgets.Shells( 2 ) := other_shell;
  dialogs.Widgets.Child_Lists( 2 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "discard_dialog_popup",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  dialogs.Widgets.FetchWidget( other_shell,
                          "discard_dialog",
                          widgets );
  dialogs.Widgets.Shells( 3 ) := other_shell;
  dialogs.Widgets.Child_Lists( 3 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "rename_dialog_popup",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  dialogs.Widgets.FetchWidget( other_shell,
                          "rename_dialog",
                          widgets );
  dialogs.Widgets.Shells( 4 ) := other_shell;
  dialogs.Widgets.Child_Lists( 4 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "choose_dialog_popup",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  dialogs.Widgets.FetchWidget( other_shell,
                          "choose_dialog",
                          widgets );
  dialogs.Widgets.Shells( 5 ) := other_shell;
  dialogs.Widgets.Child_Lists( 5 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "print_dialog_popup",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  dialogs.Widgets.FetchWidget( other_shell,
                          "print_dialog",
                          widgets );
  dialogs.Widgets.Shells( 6 ) := other_shell;
  dialogs.Widgets.Child_Lists( 6 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "working_dialog_popup",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  dialogs.Widgets.FetchWidget( other_shell,
                          "working_dialog",
                          widgets );
  dialogs.Widgets.Shells( 7 ) := other_shell;
  dialogs.Widgets.Child_Lists( 7 ) := widgets;
  XtR5.AppMainLoop( app_context );
end dialogs_main;
