with XlibR5;
with XtR5;
with Xm1_2_2;
package tagged_sub is
  procedure by_name(
      w           : in xtr5.widget;
      client_data : in xlibr5.keysym;
      call_data   : in xtr5.pointer );
  procedure by_any(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  procedure by_table(
      w           : in xtr5.widget;
      client_data : in xlibr5.intlist;
      call_data   : in xtr5.pointer );
  procedure by_nothing(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  procedure by_widget(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
end tagged_sub;
