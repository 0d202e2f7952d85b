package body limit_callbacks is

   function make_gauge
     (parent : XtR5.Widget; name : String; args : XtR5.ArgList; nargs : XtR5.Int)
      return XtR5.Widget is
   begin
      return Xm1_2_2.CreateScale (parent, name, args, nargs);
   end make_gauge;

   procedure help
     (w : XtR5.Widget; client_data : XtR5.Pointer; call_data : XtR5.Pointer) is
   begin
      null;
   end help;

end limit_callbacks;
