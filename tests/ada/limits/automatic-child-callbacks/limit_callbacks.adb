with Ada.Text_IO;

package body limit_callbacks is

   procedure report (w : XtR5.Widget; client_data : Integer; call_data : XtR5.Pointer) is
   begin
      Ada.Text_IO.Put_Line (XtR5.Name (w) & " reports" & Integer'Image (client_data));
   end report;

end limit_callbacks;
