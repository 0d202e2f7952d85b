with XlibR5;
with XrmR5;

package body Screen is

   procedure Open (Shell : out XtR5.Widget) is
      Context   : XtR5.AppContext;
      Arguments : XlibR5.StringList_Ptr := XlibR5.GetArguments;
      Options   : XrmR5.OptionDescList (1 .. 0);
      Fallback  : XlibR5.StringList (1 .. 0);
      Args      : XtR5.ArgList (1 .. 0);
   begin
      XtR5.AppInitialize (Context, "Limit", Options, Arguments, Fallback, Args, Shell);
   end Open;

   generic
      type Value is (<>);
   function Value_Of (W : XtR5.Widget; Resource : String) return Integer;

   function Value_Of (W : XtR5.Widget; Resource : String) return Integer is
      Result : aliased Value := Value'First;
      Args   : XtR5.ArgList (1 .. 1);
   begin
      XtR5.SetArg (Args (1), Resource, Result'Address);
      XtR5.GetValues (W, Args, 1);
      return Value'Pos (Result);
   end Value_Of;

   function Dimension_Value is new Value_Of (XtR5.Dimension);
   function Position_Value is new Value_Of (XtR5.Position);
   function Enum_Value is new Value_Of (XtR5.Enum);

   function Dimension_Of (W : XtR5.Widget; Resource : String) return Integer
     renames Dimension_Value;
   function Position_Of (W : XtR5.Widget; Resource : String) return Integer
     renames Position_Value;
   function Enum_Of (W : XtR5.Widget; Resource : String) return Integer renames Enum_Value;

end Screen;
