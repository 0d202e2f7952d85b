with XlibR5;
with XtR5;
with Xm1_2_2;
package worlds is
  procedure hit(
      w           : in xtr5.widget;
      client_data : in boolean;
      call_data   : in xtr5.pointer );
  function make(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
end worlds;
