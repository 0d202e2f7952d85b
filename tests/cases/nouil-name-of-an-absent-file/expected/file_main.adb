with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
with p.q;
with p.q;
procedure file_main is
  app_class : constant string := "File_main";
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
  p.q.AppShell := app_shell;
  p.q.AppShell := app_shell;
  p.q.Shells( 1 ) := app_shell;
  p.q.FetchWidget( app_shell,
                          "c",
                          widgets );
  p.q.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
  other_shell := XtR5.CreatePopupShell( "p.q",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  p.q.FetchWidget( other_shell,
                          "d",
                          widgets );
  p.q.Shells( 2 ) := other_shell;
  p.q.Child_Lists( 2 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  XtR5.AppMainLoop( app_context );
end file_main;
