with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package cleanups_client_data is
    string_1_1 : constant string :=
      "m" &
      character'val(   0 );
    compound_string_1 : xm1_2_2.xmstring;
    color_2 : xlibr5.pixel;
    string_2 : constant string :=
      "red" &
      character'val(   0 );
    color_args_2 : xtr5.arglist( 1 .. 1 );
    color_colormap_2 : xlibr5.colormap;
    color_screen_rgb_2 : xlibr5.color;
    color_exact_rgb_2 : xlibr5.color;
    color_status_2 : boolean;
    compound_string_table_3 : xm1_2_2.xmstringlist( 1 .. 3 ) := ( others => xtr5.xtnull );
    color_4 : xlibr5.pixel;
    string_4 : constant string :=
      "tan" &
      character'val(   0 );
    color_args_4 : xtr5.arglist( 1 .. 1 );
    color_colormap_4 : xlibr5.colormap;
    color_screen_rgb_4 : xlibr5.color;
    color_exact_rgb_4 : xlibr5.color;
    color_status_4 : boolean;
    color_5 : xlibr5.pixel;
    string_5 : constant string :=
      "#0000000000ff" &
      character'val(   0 );
    color_args_5 : xtr5.arglist( 1 .. 1 );
    color_colormap_5 : xlibr5.colormap;
    color_screen_rgb_5 : xlibr5.color;
    color_exact_rgb_5 : xlibr5.color;
    color_status_5 : boolean;
    string_6_1 : constant string :=
      "b" &
      character'val(   0 );
    compound_string_6 : xm1_2_2.xmstring;
  procedure cleanups_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, cleanups_cb_proc);
end cleanups_client_data;
