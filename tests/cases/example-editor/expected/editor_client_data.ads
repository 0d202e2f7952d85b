with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package editor_client_data is
    integer_1 : constant integer := 101;
    integer_2 : constant integer := 102;
    integer_3 : constant integer := 103;
    integer_4 : constant integer := 104;
    integer_5 : constant integer := 105;
    integer_6 : constant integer := 201;
    integer_7 : constant integer := 202;
    integer_8 : constant integer := 203;
    integer_9 : constant integer := 204;
    integer_10 : constant integer := 205;
    integer_11 : constant integer := 301;
    integer_12 : constant integer := 302;
    integer_13 : constant integer := 401;
    integer_14 : constant integer := 402;
  procedure editor_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma external(c, editor_cb_proc);
end editor_client_data;
