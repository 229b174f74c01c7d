#pragma once

#include "x11/x_connection.h"

#include <chrono>
#include <cstdint>
#include <optional>

namespace nocturo {

/// A note on an X server that its displays show ramps which a Nocturo wrote. It is kept by the
/// server itself, so it lives exactly as long as those ramps do: it outlasts the program and is
/// gone with the server. What is sent here and what is sent to RandR over the same connection is
/// done in the order of sending.
class ServerMark {
  public:
    struct Content {
        std::uint64_t token = 0;  // of the run of Nocturo that wrote
        std::uint32_t window = 0; // which the server destroys after all that this Nocturo sent
        bool operator==(const Content&) const = default;
    };

    /// The connection must outlive the mark.
    explicit ServerMark(XConnection& connection);

    /// Asks the server ahead for what a mark needs to know.
    static void expect(XConnection& connection);

    /// Nothing where there is no mark, and when the server has gone.
    std::optional<Content> read();

    void set(const Content& content);
    void remove();

    /// A window that nobody sees, for a Content of one's own. 0 when the server has gone.
    std::uint32_t createWindow();

    /// False when the window has gone.
    bool isAlive(std::uint32_t window);

    /// Waits for the window to go or for the mark to be removed; false when that did not come in
    /// time.
    bool waitUntilGone(std::uint32_t window, std::chrono::milliseconds patience);
    bool waitUntilRemoved(std::chrono::milliseconds patience);

    /// While it exists the server serves no other connection.
    class Grab {
      public:
        explicit Grab(ServerMark& mark);
        ~Grab();
        Grab(const Grab&) = delete;
        Grab& operator=(const Grab&) = delete;

      private:
        xcb_connection_t* connection_;
    };

  private:
    XConnection& connection_;
    std::uint32_t root_ = 0;
    std::uint32_t property_ = 0;
};

} // namespace nocturo
