with XlibR5;
with XtR5;
with Xm1_2_2;
package stubs_callbacks is
  procedure p_asciz(
      w           : in xtr5.widget;
      client_data : in xlibr5.stringlist;
      call_data   : in xtr5.pointer );
  procedure p_boolean(
      w           : in xtr5.widget;
      client_data : in boolean;
      call_data   : in xtr5.pointer );
  procedure p_class(
      w           : in xtr5.widget;
      client_data : in xtr5.widgetclass;
      call_data   : in xtr5.pointer );
  procedure p_color(
      w           : in xtr5.widget;
      client_data : in xtr5.pixel;
      call_data   : in xtr5.pointer );
  procedure p_string(
      w           : in xtr5.widget;
      client_data : in xm1_2_2.xmstring;
      call_data   : in xtr5.pointer );
  procedure p_table(
      w           : in xtr5.widget;
      client_data : in xm1_2_2.xmstringlist;
      call_data   : in xtr5.pointer );
  procedure p_float(
      w           : in xtr5.widget;
      client_data : in xtr5.double;
      call_data   : in xtr5.pointer );
  procedure p_font(
      w           : in xtr5.widget;
      client_data : in xlibr5.fontstruct_ptr;
      call_data   : in xtr5.pointer );
  procedure p_fontset(
      w           : in xtr5.widget;
      client_data : in xlibr5.fontset;
      call_data   : in xtr5.pointer );
  procedure p_fonts(
      w           : in xtr5.widget;
      client_data : in xm1_2_2.fontlist;
      call_data   : in xtr5.pointer );
  procedure p_icon(
      w           : in xtr5.widget;
      client_data : in xlibr5.pixmap;
      call_data   : in xtr5.pointer );
  procedure p_integer(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
  procedure p_integers(
      w           : in xtr5.widget;
      client_data : in xlibr5.intlist;
      call_data   : in xtr5.pointer );
  procedure p_keysym(
      w           : in xtr5.widget;
      client_data : in xlibr5.keysym;
      call_data   : in xtr5.pointer );
  procedure p_pixmap(
      w           : in xtr5.widget;
      client_data : in xlibr5.pixmap;
      call_data   : in xtr5.pointer );
  procedure p_rgb(
      w           : in xtr5.widget;
      client_data : in xtr5.pixel;
      call_data   : in xtr5.pointer );
  procedure p_single(
      w           : in xtr5.widget;
      client_data : in xlib5.real;
      call_data   : in xtr5.pointer );
  procedure p_text(
      w           : in xtr5.widget;
      client_data : in string;
      call_data   : in xtr5.pointer );
  procedure p_keys(
      w           : in xtr5.widget;
      client_data : in xtr5.translations;
      call_data   : in xtr5.pointer );
  procedure p_wide(
      w           : in xtr5.widget;
      client_data : in xlibr5.unsignedshortlist;
      call_data   : in xtr5.pointer );
  procedure p_bitmap(
      w           : in xtr5.widget;
      client_data : in xlibr5.pixmap;
      call_data   : in xtr5.pointer );
  procedure p_widget(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  procedure p_any(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  procedure p_void(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  procedure p_none(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
end stubs_callbacks;
