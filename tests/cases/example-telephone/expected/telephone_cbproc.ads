with XlibR5;
with XtR5;
with Xm1_2_2;
generic
  with procedure digit_proc(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  with procedure call_proc(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure hang_up_proc(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure number_proc(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
procedure telephone_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
