with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package converted_client_data is
    boolean_1 : constant boolean := true;
    integer_2 : constant integer := 3;
    single_float_3 : constant xlib5.real := 1.000000E+00;
    float_4 : constant xtr5.double := 6.000000000000000E+00;
    string_5_1 : constant string :=
      "some words" &
      character'val(   0 );
    compound_string_5 : xm1_2_2.xmstring;
    color_6 : xlibr5.pixel;
    string_6 : constant string :=
      "red" &
      character'val(   0 );
    color_args_6 : xtr5.arglist( 1 .. 1 );
    color_colormap_6 : xlibr5.colormap;
    color_screen_rgb_6 : xlibr5.color;
    color_exact_rgb_6 : xlibr5.color;
    color_status_6 : boolean;
    integer_7 : constant integer := 2;
  procedure converted_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma call_in(c, converted_cb_proc);
end converted_client_data;
