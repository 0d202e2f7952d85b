with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    fontset_1 : xlibr5.fontset;
    fontset_string_1 : constant string :=
        "a";
    fontset_missing_1 : xlibr5.stringlist_ptr;
    fontset_mcount_1 : xlibr5.int;
    fontset_defstr_1 : xlibr5.string_ptr;
    fontset_display_1 : xlibr5.display;
    fontset_2 : xlibr5.fontset;
    fontset_string_2 : constant string :=
        "b," &
        "c";
    fontset_missing_2 : xlibr5.stringlist_ptr;
    fontset_mcount_2 : xlibr5.int;
    fontset_defstr_2 : xlibr5.string_ptr;
    fontset_display_2 : xlibr5.display;
    arg_3 : constant string := "movedCallback" & ASCII.NUL;
    fontset_3 : xlibr5.fontset;
    fontset_string_3 : constant string :=
        "x," &
        "y";
    fontset_missing_3 : xlibr5.stringlist_ptr;
    fontset_mcount_3 : xlibr5.int;
    fontset_defstr_3 : xlibr5.string_ptr;
    fontset_display_3 : xlibr5.display;
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
