#pragma once

#include "displays/guard/journal.h"
#include "x11/x_connection.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace nocturo {

/// What an X server keeps of a Nocturo that changes its displays, in properties of its first root
/// window: the mark, that ramps were written, and the journal, how they were before. They live
/// exactly as long as those ramps do: they outlast the program and are gone with the server. What
/// is sent here and what is sent to RandR over the same connection is done in the order of sending.
///
/// Any program may have written such properties: what is read is checked.
class ServerMark {
  public:
    /// A run of Nocturo. Its window is its own alone, and knows the token: the server destroys it
    /// after all that this Nocturo sent, and what becomes of its number says nothing.
    struct Owner {
        std::uint64_t token = 0; // random
        std::uint32_t window = 0;
        bool operator==(const Owner&) const = default;
    };

    /// The connection must outlive the mark.
    explicit ServerMark(XConnection& connection);

    /// Asks the server ahead for what a mark needs to know.
    static void expect(XConnection& connection);

    /// Whose mark is there. Nothing where there is none, and when the server has gone.
    std::optional<Owner> read() const;

    /// The journal, if it is there, whole and of that run.
    std::optional<Journal> readJournal(std::uint64_t token) const;

    /// Keeps the journal; false where it is longer than the server takes at once. It is of use
    /// only beside a mark, so it is kept first.
    bool keep(const Journal& journal) const;

    void set(const Owner& owner) const;

    /// Removes both.
    void remove() const;

    /// A run of this process, with a window that nobody sees. The window is 0 when the server has
    /// gone.
    Owner createOwner() const;

    /// Has `letGo` called from the event loop when another program asks that owner to give the
    /// displays back.
    [[nodiscard]] XListener onLetGo(const Owner& owner, std::function<void()> letGo) const;

    /// Whether the owner is connected still.
    bool isAlive(const Owner& owner) const;

    /// Waits for the owner's connection to end; false when that did not come in time.
    bool waitUntilGone(const Owner& owner, std::chrono::milliseconds patience) const;

    /// Asks the owner to give the displays back and waits for it to remove the mark; false when it
    /// did not in time.
    bool askToLetGo(const Owner& owner, std::chrono::milliseconds patience) const;

    /// A note for the next Nocturo that somebody had the displays given back by hand. Taking it
    /// says whether it was there, and removes it.
    void noteRestored() const;
    bool takeRestored() const;

    /// While it exists the server serves no other connection, so nothing may be done meanwhile that
    /// waits for anybody else; not even a line may be logged.
    class Grab {
      public:
        explicit Grab(const ServerMark& mark);
        ~Grab();
        Grab(const Grab&) = delete;
        Grab& operator=(const Grab&) = delete;

      private:
        xcb_connection_t* connection_;
    };

  private:
    std::vector<std::uint32_t> readNumbers(std::uint32_t window, std::uint32_t property) const;

    XConnection& connection_;
    std::uint32_t root_ = 0;
    std::uint32_t mark_ = 0; // names, as the server numbers them
    std::uint32_t journal_ = 0;
    std::uint32_t run_ = 0;
    std::uint32_t letGo_ = 0;
    std::uint32_t restored_ = 0;
};

} // namespace nocturo
