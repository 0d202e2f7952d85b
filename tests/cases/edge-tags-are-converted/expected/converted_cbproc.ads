with XlibR5;
with XtR5;
with Xm1_2_2;
generic
  with procedure p_boolean(
      w           : in xtr5.widget;
      client_data : in boolean;
      call_data   : in xtr5.pointer );
  with procedure p_integer(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  with procedure p_single(
      w           : in xtr5.widget;
      client_data : in xlib5.real;
      call_data   : in xtr5.pointer );
  with procedure p_float(
      w           : in xtr5.widget;
      client_data : in xtr5.double;
      call_data   : in xtr5.pointer );
  with procedure p_label(
      w           : in xtr5.widget;
      client_data : in xm1_2_2.xmstring;
      call_data   : in xtr5.pointer );
  with procedure p_rgb(
      w           : in xtr5.widget;
      client_data : in xtr5.pixel;
      call_data   : in xtr5.pointer );
procedure converted_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
