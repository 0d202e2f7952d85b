with XtR5;
procedure demo_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  null;
end demo_cbproc;
