// The preference window, on a real X server with four displays: how long users wait for it, and
// whether it keeps up with a slider.

#include "ctl/bus_client.h"
#include "ctl/failure.h"
#include "figures.h"
#include "rig/session.h"
#include "slider.h"

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <linux/input-event-codes.h>
#include <stdexcept>
#include <xcb/xcb.h>

namespace nocturo {

namespace {

using SteadyClock = std::chrono::steady_clock;

/// Sees windows come and what they show.
class WindowObserver {
  public:
    explicit WindowObserver(const std::string& display)
        : connection_(xcb_connect(display.c_str(), nullptr), &xcb_disconnect),
          root_(xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root) {
        const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(connection_.get(), root_, XCB_CW_EVENT_MASK, &events);
        xcb_flush(connection_.get());
    }

    /// Returns once a window that came after the last call shows something.
    void waitForPaintedWindow() {
        const xcb_window_t window = waitFor(XCB_MAP_NOTIFY);
        const auto start = SteadyClock::now();
        while (!isPainted(window)) {
            if (millisecondsSince(start) > 5000) {
                throw std::runtime_error("the window stays empty");
            }
        }
    }

    void waitForHiddenWindow() { waitFor(XCB_UNMAP_NOTIFY); }

  private:
    // Both events begin alike.
    xcb_window_t waitFor(int type) {
        while (xcb_generic_event_t* event = xcb_wait_for_event(connection_.get())) {
            const bool awaited = (event->response_type & 0x7f) == type;
            const xcb_window_t window = reinterpret_cast<xcb_map_notify_event_t*>(event)->window;
            std::free(event);
            if (awaited) {
                return window;
            }
        }
        throw std::runtime_error("the server has gone");
    }

    /// A pixel of the window's margin is no longer the server's black.
    bool isPainted(xcb_window_t window) {
        auto* reply = xcb_get_image_reply(
            connection_.get(),
            xcb_get_image(connection_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, 3, 3, 1, 1, ~0U),
            nullptr);
        const bool painted =
            reply != nullptr &&
            (*reinterpret_cast<std::uint32_t*>(xcb_get_image_data(reply)) & 0xffffffU) != 0;
        std::free(reply);
        return painted;
    }

    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection_;
    xcb_window_t root_;
};

void measureShowing() {
    std::vector<double> first;
    std::vector<double> later;
    for (int round = 0; round < 50; ++round) {
        rig::Session session(4);
        session.showWindows();
        session.writeSettings(
            "<key>NDGroupEffect</key><array><string>NDDimEffect</string></array>");
        const auto nocturo = session.startNocturo();
        setenv("DBUS_SESSION_BUS_ADDRESS", session.bus().address().c_str(), 1);
        BusClient client;
        WindowObserver observer(session.server().display());
        const auto show = [&](std::vector<double>& samples) {
            const auto start = SteadyClock::now();
            client.call("ShowPreferences");
            observer.waitForPaintedWindow();
            samples.push_back(millisecondsSince(start));
        };
        show(first);
        for (int again = 0; again < 10; ++again) {
            session.run("xdotool", {"key", "Escape"});
            observer.waitForHiddenWindow();
            show(later);
        }
    }
    printFigure("first `preferences` to the window painted, worst of 50", percentile(first, 1.0),
                150, "ms");
    printFigure("later `preferences` to the window painted, worst of 500", percentile(later, 1.0),
                30, "ms");
}

void measureSlider() {
    rig::Session session(4);
    session.server().setLayout("us");
    session.showWindows();
    session.writeSettings("<key>NDGroupEffect</key><array><string>NDDimEffect</string></array>");
    const auto nocturo = session.startNocturo();
    setenv("DBUS_SESSION_BUS_ADDRESS", session.bus().address().c_str(), 1);
    BusClient client;
    WindowObserver windows(session.server().display());
    client.call("ShowPreferences");
    windows.waitForPaintedWindow();
    session.run("xdotool", {"key", "alt+t", "Tab", "Tab", "Tab"}); // the temperature has a key
    rig::XClient keyboard(session.server().display());
    const auto step = [&] {
        keyboard.press(KEY_RIGHT);
        keyboard.release(KEY_RIGHT);
    };
    const auto looks = [&] {
        auto observer = std::make_shared<rig::XClient>(session.server().display());
        return [observer, crtc = observer->crtcOf("DUMMY3")] {
            return static_cast<int>(observer->ramp(crtc)[0].back());
        };
    };
    printSlider({step, looks}, client, "four displays");
}

} // namespace

} // namespace nocturo

int main() {
    try {
        nocturo::measureShowing();
        nocturo::measureSlider();
    } catch (const nocturo::Failure& failure) {
        std::cerr << failure.sentence << '\n';
        return 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
