with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package tagged_client_data is
    arg_1 : constant string := "turned" & ASCII.NUL;
    keysym_1 : constant xlibr5.keysym := XK.K_F1;
    arg_2 : constant string := "turned" & ASCII.NUL;
    keysym_2 : constant xlibr5.keysym := xlibr5.keysym( character'pos( 'x' ) );
    arg_3 : constant string := "turned" & ASCII.NUL;
    arg_4 : constant string := "turned" & ASCII.NUL;
    widget_4 : xtr5.widget := xtr5.xtnull;
    widget_string_4 : constant string := "*deep";
    arg_5 : constant string := "spin" & ASCII.NUL;
    class_rec_name_5 : constant xtr5.widgetclass := xm1_2_2.PushButtonGadgetclass;
    arg_6 : constant string := "spin" & ASCII.NUL;
    arg_7 : constant string := "spin" & ASCII.NUL;
    integer_table_8 : constant xlibr5.intlist( 1 .. 1 ) := (
        1 => -1 );
    widget_9 : xtr5.widget := xtr5.xtnull;
    widget_string_9 : constant string := "*top";
    arg_10 : constant string := "spin" & ASCII.NUL;
    class_rec_name_10 : constant xtr5.widgetclass := xm1_2_2.PushButtonGadgetclass;
    arg_11 : constant string := "spin" & ASCII.NUL;
    arg_12 : constant string := "spin" & ASCII.NUL;
    arg_13 : constant string := "turned" & ASCII.NUL;
    widget_13 : xtr5.widget := xtr5.xtnull;
    widget_string_13 : constant string := "*deep";
  procedure tagged_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma export_procedure(c, tagged_cb_proc);
end tagged_client_data;
