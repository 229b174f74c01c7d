#pragma once

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

namespace nocturo {

struct XcbFree {
    void operator()(void* reply) const { std::free(reply); }
};

struct XcbDisconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

/// A reply, event or error that xcb handed over.
template <class T>
using XcbReply = std::unique_ptr<T, XcbFree>;

using XcbConnection = std::unique_ptr<xcb_connection_t, XcbDisconnect>;

} // namespace nocturo
