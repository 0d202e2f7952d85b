with XlibR5;
with XtR5;
with Xm1_2_2;
package my_mod_callbacks is
  procedure do_it(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  procedure go_on(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
end my_mod_callbacks;
