with XlibR5;
with XtR5;
with Xm1_2_2;
package m_callbacks is
  procedure p(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
end m_callbacks;
