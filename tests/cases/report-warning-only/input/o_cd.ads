with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package demo_client_data is
end demo_client_data;
