with XlibR5;
with XtR5;
with Xm1_2_2;
package m_callbacks is
  function p(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
  procedure q(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
end m_callbacks;
