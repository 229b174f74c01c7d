#pragma once

#include "x11/xcb_handles.h"

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace nocturo {

class RunLoop;
class Watch;

/// Somebody who listens to an X server, for as long as this is kept. A handler may drop its own.
using XListener = std::shared_ptr<const void>;

/// The one connection of a process to an X server, and what comes over it for those who listen.
///
/// Handlers are called from the event loop, whether an event came by itself or beside an answer
/// that somebody waited for. When the server goes, questions are answered with nothing and
/// nothing more is heard. Main thread only.
class XConnection {
  public:
    using Handler = std::function<void(const xcb_generic_event_t& event)>;

    /// Null when the server of a display name such as ":0" cannot be reached; an empty name
    /// reaches none.
    static std::unique_ptr<XConnection> open(const std::string& displayName);
    ~XConnection();
    XConnection(const XConnection&) = delete;
    XConnection& operator=(const XConnection&) = delete;

    /// For requests. Events are not to be read from it.
    xcb_connection_t* handle() const { return connection_.get(); }

    /// True once the server has gone.
    bool isLost() const { return xcb_connection_has_error(handle()) != 0; }

    /// The root windows of all screens, that of the screen which the display name chooses first.
    const std::vector<xcb_window_t>& roots() const { return roots_; }
    xcb_window_t root() const { return roots_.front(); }

    /// The number of the screen that the display name chooses.
    int screenNumber() const { return screenNumber_; }

    /// The server's number for a name; 0 when the server does not answer. Waits when the name is
    /// new, but for names that were expected only once for all of them.
    xcb_atom_t atom(std::string_view name);
    void expectAtom(std::string_view name);

    /// The property of the window as 32-bit numbers, 262,144 at most; nothing when it is not there.
    std::optional<std::vector<std::uint32_t>> property(xcb_window_t window, xcb_atom_t name) const;

    /// Has these events of a window sent here, beside those that others here have asked for.
    void selectEvents(xcb_window_t window, std::uint32_t mask);

    /// The same for a window of somebody else, which may have gone: false then. Waits.
    bool selectEventsIfThere(xcb_window_t window, std::uint32_t mask);

    /// The same for as long as what is returned is kept, which the connection must outlive. Does
    /// not wait, and is nothing where the window has gone.
    [[nodiscard]] std::shared_ptr<const void> selectEventsMeanwhile(xcb_window_t window,
                                                                    std::uint32_t mask);

    /// Hears of every event of a type. It is sent here only where it was selected.
    [[nodiscard]] XListener onEvent(unsigned type, Handler handler);

    /// Hears of changes of a property, which are selected.
    [[nodiscard]] XListener onProperty(xcb_window_t window, xcb_atom_t name,
                                       std::function<void()> changed);

    /// Hears of every event of a type, 0 being errors, as soon as it is read, which may be while
    /// anybody waits for an answer. So the handler only writes down what it hears.
    [[nodiscard]] XListener noteEvent(unsigned type, Handler note);

    /// Hears, once, that the server has gone.
    [[nodiscard]] XListener onLoss(std::function<void()> lost);

    /// From now on the loop, which must outlive the connection, calls the handlers.
    void join(RunLoop& loop);

    /// Reads what has come in and has it noted; the handlers are called later, from the loop.
    void takeIn();

    /// Reads what has come in and calls the handlers, for programs without a loop.
    void processEvents();

    /// Readable when the server has sent something, and when it is gone.
    int descriptor() const { return xcb_get_file_descriptor(handle()); }

    /// Waits for the event; false when it did not come in time. Others hear of what comes meanwhile
    /// as ever.
    bool waitForEvent(unsigned type, const std::function<bool(const xcb_generic_event_t&)>& isIt,
                      std::chrono::milliseconds patience);

    /// Returns once the server has done all that was sent.
    void synchronize();

  private:
    struct Listener;
    using Event = XcbReply<xcb_generic_event_t>;

    XConnection(XcbConnection connection, int screenNumber);

    XListener add(Listener listener);
    void take(Event event);
    void handOut(const xcb_generic_event_t& event);
    void tellLoss();
    bool hasRead();
    std::uint32_t maskOf(xcb_window_t window) const;
    xcb_void_cookie_t sendMask(xcb_window_t window);

    XcbConnection connection_;
    std::vector<xcb_window_t> roots_;
    int screenNumber_;
    std::map<std::string, xcb_intern_atom_cookie_t, std::less<>> expectedAtoms_;
    std::map<std::string, xcb_atom_t, std::less<>> atoms_;
    // Masks: a client has one for each window.
    std::map<xcb_window_t, std::uint32_t> selected_;
    std::multimap<xcb_window_t, std::uint32_t> selectedMeanwhile_;
    std::vector<std::weak_ptr<Listener>> listeners_;
    std::deque<Event> events_; // read, but not handed out yet
    bool lossIsTold_ = false;
    std::unique_ptr<Watch> watch_;
};

/// The server's number for a name, over any connection; 0 when the server does not answer.
xcb_atom_t internAtom(xcb_connection_t* connection, std::string_view name);

} // namespace nocturo
