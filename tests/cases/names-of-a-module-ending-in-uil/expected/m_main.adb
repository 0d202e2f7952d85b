with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
with my_mod;
with my_mod;
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
  my_mod.Widgets.AppShell := app_shell;
  my_mod.Widgets.AppShell := app_shell;
  my_mod.Widgets.Shells( 1 ) := app_shell;
  my_mod.Widgets.FetchWidget( app_shell,
                          "my_mod",
                          widgets );
  my_mod.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
  other_shell := XtR5.CreatePopupShell( "my_mod_callbacks_shell",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  my_mod.Widgets.FetchWidget( other_shell,
                          "my_mod_callbacks",
                          widgets );
  my_mod.Widgets.Shells( 2 ) := other_shell;
  my_mod.Widgets.Child_Lists( 2 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  XtR5.AppMainLoop( app_context );
end m_main;
