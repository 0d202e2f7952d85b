with stubs_cbproc;
with stubs_callbacks;
procedure stubs_cbinst is new
  stubs_cbproc(
    p_asciz => stubs_callbacks.p_asciz,
    p_boolean => stubs_callbacks.p_boolean,
    p_class => stubs_callbacks.p_class,
    p_color => stubs_callbacks.p_color,
    p_string => stubs_callbacks.p_string,
    p_table => stubs_callbacks.p_table,
    p_float => stubs_callbacks.p_float,
    p_font => stubs_callbacks.p_font,
    p_fontset => stubs_callbacks.p_fontset,
    p_fonts => stubs_callbacks.p_fonts,
    p_icon => stubs_callbacks.p_icon,
    p_integer => stubs_callbacks.p_integer,
    p_integers => stubs_callbacks.p_integers,
    p_keysym => stubs_callbacks.p_keysym,
    p_pixmap => stubs_callbacks.p_pixmap,
    p_rgb => stubs_callbacks.p_rgb,
    p_single => stubs_callbacks.p_single,
    p_text => stubs_callbacks.p_text,
    p_keys => stubs_callbacks.p_keys,
    p_wide => stubs_callbacks.p_wide,
    p_bitmap => stubs_callbacks.p_bitmap,
    p_widget => stubs_callbacks.p_widget,
    p_any => stubs_callbacks.p_any,
    p_void => stubs_callbacks.p_void,
    p_none => stubs_callbacks.p_none );
