// X11.
#include "desktop/WindowSystem.h"

#include <QGuiApplication>
#include <QWidget>
#include <QtGui/qguiapplication_platform.h>

#include <array>
#include <cstdlib>
#include <initializer_list>
#include <memory>
#include <vector>

#include <xcb/xcb.h>

namespace {

constexpr std::uint8_t bitsPerWord = 32;

struct Free {
    void operator()(void *pReply) const { std::free(pReply); }
};
template <typename Reply> using Answer = std::unique_ptr<Reply, Free>;

/// Null if the window system is not X11.
xcb_connection_t *Connection() {
    const auto *const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 == nullptr ? nullptr : x11->connection();
}

xcb_window_t WindowOf(const QWidget &pWindow) {
    return static_cast<xcb_window_t>(pWindow.internalWinId());
}

xcb_atom_t Atom(xcb_connection_t *pConnection, std::string_view pName) {
    const auto request =
        xcb_intern_atom(pConnection, 0, static_cast<std::uint16_t>(pName.size()), pName.data());
    const Answer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(pConnection, request, nullptr));
    return reply == nullptr ? xcb_atom_t{XCB_ATOM_NONE} : reply->atom;
}

void SetAtoms(xcb_connection_t *pConnection, xcb_window_t pWindow, std::string_view pName,
              std::initializer_list<std::string_view> pValues) {
    std::vector<xcb_atom_t> values;
    for (const std::string_view value : pValues) {
        values.push_back(Atom(pConnection, value));
    }
    xcb_change_property(pConnection, XCB_PROP_MODE_REPLACE, pWindow, Atom(pConnection, pName), XCB_ATOM_ATOM,
                        bitsPerWord, static_cast<std::uint32_t>(values.size()), values.data());
}

/// Takes the group out of the hints that Qt has set (Inter-Client Communication Conventions Manual, 4.1.2.4).
void LeaveGroup(xcb_connection_t *pConnection, xcb_window_t pWindow) {
    constexpr std::uint32_t words = 9;
    constexpr std::uint32_t groupHint = 1U << 6;
    const auto request =
        xcb_get_property(pConnection, 0, pWindow, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, 0, words);
    const Answer<xcb_get_property_reply_t> reply(xcb_get_property_reply(pConnection, request, nullptr));
    if (reply != nullptr && reply->value_len == words) {
        auto *const hints = static_cast<std::uint32_t *>(xcb_get_property_value(reply.get()));
        hints[0] &= ~groupHint;
        xcb_change_property(pConnection, XCB_PROP_MODE_REPLACE, pWindow, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS,
                            bitsPerWord, words, hints);
    }
}

} // namespace

void StandAlone(const QWidget &pWindow) {
    xcb_connection_t *const connection = Connection();
    if (connection == nullptr) {
        return;
    }
    const xcb_window_t window = WindowOf(pWindow);
    LeaveGroup(connection, window);
    // As a dialog, or some window managers show buttons that have no use. Qt keeps what it finds on a window
    // that is not shown yet.
    SetAtoms(connection, window, "_NET_WM_WINDOW_TYPE", {"_NET_WM_WINDOW_TYPE_DIALOG"});
    SetAtoms(connection, window, "_NET_WM_STATE", {"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"});
}

std::optional<QSize> SizeOnScreen(const QWidget &pWindow) {
    xcb_connection_t *const connection = Connection();
    if (connection == nullptr) {
        return std::nullopt;
    }
    const auto request = xcb_get_geometry(connection, WindowOf(pWindow));
    const Answer<xcb_get_geometry_reply_t> reply(xcb_get_geometry_reply(connection, request, nullptr));
    if (reply == nullptr) {
        return std::nullopt;
    }
    return (QSizeF(reply->width, reply->height) / pWindow.devicePixelRatioF()).toSize();
}

void AskForSize(const QWidget &pWindow, QSize pSize) {
    xcb_connection_t *const connection = Connection();
    if (connection != nullptr) {
        const QSize pixels = (QSizeF(pSize) * pWindow.devicePixelRatioF()).toSize();
        const std::array size{static_cast<std::uint32_t>(pixels.width()),
                              static_cast<std::uint32_t>(pixels.height())};
        xcb_configure_window(connection, WindowOf(pWindow),
                             XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size.data());
        xcb_flush(connection);
    }
}

bool IsMouseHeld() {
    xcb_connection_t *const connection = Connection();
    if (connection == nullptr) {
        return false;
    }
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const Answer<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, root), nullptr));
    return reply != nullptr && (reply->mask & XCB_BUTTON_MASK_1) != 0;
}
