with XlibR5;
with XtR5;
with Xm1_2_2;
package telephone_callbacks is
  procedure digit_proc(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  procedure call_proc(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  procedure hang_up_proc(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  procedure number_proc(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
end telephone_callbacks;
