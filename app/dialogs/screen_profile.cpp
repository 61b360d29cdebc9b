// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/dialogs/screen_profile.h"

#include <QGuiApplication>

#ifdef VARNEL_XCB
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>
#endif

namespace varnel {

#ifdef VARNEL_XCB

namespace {

constexpr std::string_view propertyName = "_ICC_PROFILE";
constexpr std::uint32_t mostWords = 4 * 1024 * 1024 / 4;  // profiles are rarely above one megabyte

struct Freed {
    void operator()(void* answer) const { std::free(answer); }
};

xcb_atom_t AtomOf(xcb_connection_t* server, std::string_view name) {
    const auto asked =
        xcb_intern_atom(server, 1, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, Freed> answer(
        xcb_intern_atom_reply(server, asked, nullptr));
    return answer ? answer->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

}  // namespace

QByteArray ScreenProfile() {
    auto* const native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* const server = native == nullptr ? nullptr : native->connection();
    if (server == nullptr) {
        return {};
    }
    const xcb_atom_t atom = AtomOf(server, propertyName);
    if (atom == XCB_ATOM_NONE) {
        return {};
    }
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
    const auto asked =
        xcb_get_property(server, 0, root, atom, XCB_GET_PROPERTY_TYPE_ANY, 0, mostWords);
    const std::unique_ptr<xcb_get_property_reply_t, Freed> answer(
        xcb_get_property_reply(server, asked, nullptr));
    if (!answer || answer->format != 8) {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(answer.get())),
            xcb_get_property_value_length(answer.get())};
}

#else

QByteArray ScreenProfile() {
    return {};
}

#endif

}  // namespace varnel
