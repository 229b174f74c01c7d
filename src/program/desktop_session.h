#pragma once

#include "base/directory_watch.h"
#include "bus/document_queue.h"
#include "program/desktop_hot_keys.h"
#include "program/window_restoration.h"
#include "session/desktop_entries.h"
#include "session/desktop_sources.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace nocturo {

class ConnectedDisplays;
struct Core;

/// What Nocturo shows on the desktop and hears from it.
class DesktopSession {
  public:
    /// All must outlive the session; `server` is null where there is no X server.
    DesktopSession(Core& core, const ConnectedDisplays& displays, XConnection* server);
    ~DesktopSession();
    DesktopSession(const DesktopSession&) = delete;
    DesktopSession& operator=(const DesktopSession&) = delete;

    /// The launch, which may ask the user and goes on, from the event loop, when it is answered.
    /// Ends the loop when the user would rather quit. `refused` is given a sentence where some of
    /// the documents, absolute paths, could not be opened.
    void launch(const std::vector<std::string>& documents,
                const std::function<void(const std::string&)>& refused);

    /// The application ends: keeps which windows are open.
    void end() const { windowRestoration_.save(); }

  private:
    void listen();

    Core& core_;
    const ConnectedDisplays& displays_;
    XConnection* server_;
    const DesktopEntries applications_;
    DocumentQueue documents_;
    WindowRestoration windowRestoration_;
    std::optional<DesktopHotKeys> hotKeys_;
    std::optional<DesktopSources> sources_;
    std::optional<DirectoryWatch> looksWatch_;
};

} // namespace nocturo
