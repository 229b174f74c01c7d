#pragma once

#include "base/bus.h"
#include "bus/bus_object.h"
#include "bus/document_queue.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nocturo {

class EventLoop;
class NDAppController;

/// What a launcher tells of itself along with a call.
struct PlatformData {
    std::string activationToken;
    std::optional<std::string> language; // that sentences for it are to be in
};
struct IgnoredParameters {};

/// What launchers and file managers see of the application on the session bus: the interface
/// org.freedesktop.Application on the application's object. Of platform data only the token counts
/// that lets a window come to the front, and the language of another start of Nocturo.
///
/// A launcher starts the application by asking for one of these. What was asked before the launch
/// was done is therefore the launch itself, and switches nothing.
class LauncherFace {
  public:
    /// All must outlive the face; `bus` may be null.
    LauncherFace(NDAppController& controller, const Bus* bus, EventLoop& loop);
    LauncherFace(const LauncherFace&) = delete;
    LauncherFace& operator=(const LauncherFace&) = delete;

    /// The launch is done. Whatever reached the bus before still counts as part of it.
    void launchDidFinish();

    /// Whether documents may be opened.
    BusAnswer whetherReady() const;

  private:
    struct Table;

    /// The user starts the application: what starting it a second time does.
    BusAnswer activate(const PlatformData& platform);

    /// Opens effect documents and shows no window for them. Those that are refused are named in one
    /// sentence (org.nocturo.Error.Failed) and a message; the others are opened nevertheless.
    static int open(sd_bus_message* call, void* self, sd_bus_error* error);

    /// "toggle", "preferences", "about" or "quit"; others are ignored, and so are parameters.
    BusAnswer activateAction(const std::string& name, const IgnoredParameters& parameters,
                             const PlatformData& platform);

    NDAppController& controller_;
    const Bus* bus_;
    EventLoop& loop_;
    DocumentQueue documents_;
    bool launched_ = false;
    std::unique_ptr<BusSlot> endOfLaunch_;
    std::unique_ptr<BusSlot> object_;
};

/// What stands against changing anything while the launch asks its first question.
BusAnswer whetherReady(const NDAppController& controller);

/// Has the application that owns its name on the bus open the documents at these absolute paths; a
/// sentence when it refuses some, empty when all is well, nothing when it does not answer.
std::optional<std::string> openInRunningApplication(const Bus& bus,
                                                    const std::vector<std::string>& paths);

} // namespace nocturo
