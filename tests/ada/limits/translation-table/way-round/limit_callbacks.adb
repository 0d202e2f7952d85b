package body limit_callbacks is

   procedure add_translations
     (w : XtR5.Widget; client_data : XtR5.Pointer; call_data : XtR5.Pointer) is
   begin
      XtR5.OverrideTranslations (w, XtR5.ParseTranslationTable ("<Btn1Down>: Help()"));
   end add_translations;

end limit_callbacks;
