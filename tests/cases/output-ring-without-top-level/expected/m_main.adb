with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
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
  XtR5.RealizeWidget( app_shell );
  XtR5.AppMainLoop( app_context );
end m_main;
