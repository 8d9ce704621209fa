#include "desktop/TaskBar.h"

#ifdef NORVO_XCB

#include <QGuiApplication>
#include <QWidget>
#include <QtGui/qguiapplication_platform.h>

#include <array>
#include <cstdlib>
#include <string_view>

#include <xcb/xcb.h>

namespace {

xcb_atom_t Atom(xcb_connection_t *pConnection, std::string_view pName) {
    const auto request =
        xcb_intern_atom(pConnection, 0, static_cast<std::uint16_t>(pName.size()), pName.data());
    xcb_intern_atom_reply_t *const reply = xcb_intern_atom_reply(pConnection, request, nullptr);
    const xcb_atom_t atom = reply == nullptr ? xcb_atom_t{XCB_ATOM_NONE} : reply->atom;
    std::free(reply);
    return atom;
}

} // namespace

void KeepOffTaskBar(const QWidget &pWindow) {
    const auto *const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr) {
        return;
    }
    xcb_connection_t *const connection = x11->connection();
    constexpr std::uint8_t bitsPerAtom = 32;
    const std::array states{Atom(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
                            Atom(connection, "_NET_WM_STATE_SKIP_PAGER")};
    // Qt keeps the states that it finds on a window that is not shown yet.
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(pWindow.internalWinId()),
                        Atom(connection, "_NET_WM_STATE"), XCB_ATOM_ATOM, bitsPerAtom, states.size(),
                        states.data());
}

#else

void KeepOffTaskBar(const QWidget & /*pWindow*/) {}

#endif
