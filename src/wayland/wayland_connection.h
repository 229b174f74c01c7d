#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct wl_display;
struct wl_interface;
struct wl_output;
struct wl_proxy;
struct wl_registry;

namespace nocturo {

/// One output as the compositor describes it. What it does not tell stays empty or 0.
struct WaylandOutput {
    std::uint32_t global = 0; // the registry's number; another one when it is plugged in again
    wl_output* proxy = nullptr;
    std::string name; // of the connector, such as "DP-1"
    std::string make;
    std::string model;
    std::int32_t x = 0; // place in the compositor's space, in logical pixels
    std::int32_t y = 0;
    std::int32_t width = 0; // in logical pixels where the compositor tells them
    std::int32_t height = 0;
    std::uint64_t modeGeneration = 0; // another number whenever a mode was announced
    bool described = false;           // everything above has come
};

/// A connection to a Wayland compositor: its globals, and its outputs kept up to date. Never waits
/// for the compositor but for as long as a caller says. Main thread only.
class WaylandConnection {
  public:
    /// Null when nothing answers there within a second. `name` is that of the socket, as in
    /// $WAYLAND_DISPLAY.
    static std::unique_ptr<WaylandConnection> open(const std::string& name);
    ~WaylandConnection();
    WaylandConnection(const WaylandConnection&) = delete;
    WaylandConnection& operator=(const WaylandConnection&) = delete;

    /// Whether the compositor has a global of that interface, in that version at least.
    bool offers(std::string_view interface, std::uint32_t version = 1) const;

    /// Binds the first global of that interface; null when there is none. `version` is the highest
    /// that is understood.
    wl_proxy* bind(const wl_interface& interface, std::uint32_t version) const;

    /// Binds each global of that interface, now and whenever one comes. `came` has it and the
    /// number of its global, which `gone` is told when that goes. For one interface.
    void follow(const wl_interface& interface, std::uint32_t version,
                std::function<void(wl_proxy*, std::uint32_t)> came,
                std::function<void(std::uint32_t)> gone);
    void stopFollowing() { followed_ = {}; }

    /// The outputs that have been described, in the order in which they came.
    std::vector<const WaylandOutput*> outputs() const;

    /// The described output of that global; null when there is none.
    const WaylandOutput* output(std::uint32_t global) const;

    /// Another number whenever outputs(), or what one of them says, differs from before.
    std::uint64_t outputsGeneration() const { return outputsGeneration_; }

    /// Called with an output just before it goes.
    void setOutputGoneHandler(std::function<void(const WaylandOutput&)> handler) {
        outputGone_ = std::move(handler);
    }

    /// Readable when processEvents() should be called.
    int descriptor() const;

    /// Sends what was asked for and takes in what has come, without waiting.
    void processEvents();

    /// Sends what was asked for, as far as the compositor takes it in.
    void flush();

    /// Takes events in until `condition` holds; false when it did not within `patience`.
    bool waitUntil(const std::function<bool()>& condition, std::chrono::milliseconds patience);

    /// Returns once the compositor has taken in all that was sent; false when it did not within
    /// `patience`.
    bool sync(std::chrono::milliseconds patience);

    /// Has `action` called from within events once the compositor has answered all that was sent
    /// before.
    void afterAnswers(std::function<void()> action);

    /// Whether the compositor has taken in so little lately that nothing more can be sent to it.
    bool isFull() const { return full_; }

    /// True once the compositor has gone, or has ended the connection: nothing works any more.
    bool isLost() const;

  private:
    struct Global {
        std::uint32_t number;
        std::string interface;
        std::uint32_t version;
    };
    struct Followed {
        const wl_interface* interface = nullptr;
        std::uint32_t version = 0;
        std::function<void(wl_proxy*, std::uint32_t)> came;
        std::function<void(std::uint32_t)> gone;
    };
    struct Output;
    struct RoundTrip;
    struct Listeners;

    explicit WaylandConnection(wl_display* display);
    wl_proxy* bind(const Global& global, const wl_interface& interface,
                   std::uint32_t version) const;
    void addGlobal(const Global& global);
    void removeGlobal(std::uint32_t number);
    void describe(Output& output);
    void outputDescribed(Output& output);
    bool takeIn(int timeoutMs);

    wl_display* display_;
    wl_registry* registry_ = nullptr;
    wl_proxy* placeManager_ = nullptr; // zxdg_output_manager_v1; null where there is none
    std::vector<Global> globals_;
    Followed followed_;
    std::list<std::unique_ptr<RoundTrip>> roundTrips_;
    std::list<std::unique_ptr<Output>> outputs_;
    std::uint64_t outputsGeneration_ = 1;
    std::uint64_t lastModeGeneration_ = 0;
    bool full_ = false;
    std::function<void(const WaylandOutput&)> outputGone_;
};

} // namespace nocturo
