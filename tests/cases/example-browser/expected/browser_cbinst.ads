with browser_cbproc;
with browser_callbacks;
procedure browser_cbinst is new
  browser_cbproc(
    go_up_cb => browser_callbacks.go_up_cb,
    reload_cb => browser_callbacks.reload_cb,
    new_folder_cb => browser_callbacks.new_folder_cb,
    new_file_cb => browser_callbacks.new_file_cb,
    folder_cb => browser_callbacks.folder_cb,
    files_cb => browser_callbacks.files_cb,
    open_cb => browser_callbacks.open_cb,
    order_cb => browser_callbacks.order_cb,
    zoom_cb => browser_callbacks.zoom_cb );
