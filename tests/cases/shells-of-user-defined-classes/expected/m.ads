with m_callbacks;
with m_uil;
package m is
  package Widgets is new m_uil(
    dialog => m_callbacks.dialog,
    menu => m_callbacks.menu,
    menubar => m_callbacks.menubar,
    xdialog => m_callbacks.xdialog,
    xmenu => m_callbacks.xmenu,
    xmenubar => m_callbacks.xmenubar,
    make_dialog => m_callbacks.make_dialog,
    make_menu => m_callbacks.make_menu,
    make_menubar => m_callbacks.make_menubar,
    dialogmenux => m_callbacks.dialogmenux );
end m;
