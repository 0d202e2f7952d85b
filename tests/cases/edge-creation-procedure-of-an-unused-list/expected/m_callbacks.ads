with XlibR5;
with XtR5;
with Xm1_2_2;
package m_callbacks is
  function make_it(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
  function make_other(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
end m_callbacks;
