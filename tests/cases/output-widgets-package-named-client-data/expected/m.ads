with m_client_data;
package m is
  package Widgets renames m_client_data;
end m;
