#include "desktop/TaskBar.h"

#include <QGuiApplication>
#include <QLibrary>
#include <QWidget>
#include <QtGui/qguiapplication_platform.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#if QT_CONFIG(xcb)

namespace {

struct Cookie {
    unsigned sequence;
};

struct AtomReply {
    std::uint8_t type;
    std::uint8_t padding;
    std::uint16_t sequence;
    std::uint32_t length;
    std::uint32_t atom;
};

using InternAtom = Cookie (*)(xcb_connection_t *, std::uint8_t, std::uint16_t, const char *);
using InternAtomReply = AtomReply *(*)(xcb_connection_t *, Cookie, void **);
using ChangeProperty = Cookie (*)(xcb_connection_t *, std::uint8_t, std::uint32_t, std::uint32_t,
                                  std::uint32_t, std::uint8_t, std::uint32_t, const void *);

constexpr std::uint8_t replace = 0;
constexpr std::uint32_t atomType = 4;
constexpr std::uint8_t bitsPerAtom = 32;

} // namespace

void KeepOffTaskBar(const QWidget &pWindow) {
    auto *x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr) {
        return;
    }
    // Qt's own part for X has loaded this library already. Linking it would cost a dependency for one hint.
    QLibrary xcb(QStringLiteral("xcb"), 1);
    const auto internAtom = reinterpret_cast<InternAtom>(xcb.resolve("xcb_intern_atom"));
    const auto internAtomReply = reinterpret_cast<InternAtomReply>(xcb.resolve("xcb_intern_atom_reply"));
    const auto changeProperty = reinterpret_cast<ChangeProperty>(xcb.resolve("xcb_change_property"));
    if (internAtom == nullptr || internAtomReply == nullptr || changeProperty == nullptr) {
        return;
    }
    xcb_connection_t *connection = x11->connection();
    const auto atom = [&](const char *pName) {
        const auto length = static_cast<std::uint16_t>(std::strlen(pName));
        AtomReply *reply = internAtomReply(connection, internAtom(connection, 0, length, pName), nullptr);
        const std::uint32_t value = reply == nullptr ? 0 : reply->atom;
        std::free(reply);
        return value;
    };
    const std::array states{atom("_NET_WM_STATE_SKIP_TASKBAR"), atom("_NET_WM_STATE_SKIP_PAGER")};
    // Qt keeps the states that it finds on a window which is not shown yet.
    changeProperty(connection, replace, static_cast<std::uint32_t>(pWindow.internalWinId()),
                   atom("_NET_WM_STATE"), atomType, bitsPerAtom, states.size(), states.data());
}

#else

void KeepOffTaskBar(const QWidget & /*pWindow*/) {}

#endif
