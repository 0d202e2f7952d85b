with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package m_client_data is
    class_rec_name_1 : constant xtr5.widgetclass := xtr5.toplevelshellwidgetclass;
    class_rec_name_2 : constant xtr5.widgetclass := xm1_2_2.gaugewidgetclass;
    arg_3 : constant string := "movedCallback" & ASCII.NUL;
    class_rec_name_3 : constant xtr5.widgetclass := xm1_2_2.rectobjclass;
  procedure m_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, m_cb_proc);
end m_client_data;
