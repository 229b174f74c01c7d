#pragma once

#include "displays/gnome/shell_journal.h"
#include "displays/guard/guards.h"
#include "displays/ramp.h"

#include <cstdint>
#include <map>
#include <string>

namespace nocturo {

/// Has the ramps of a shell given back even when this process is killed: before the first CRTC gets
/// another ramp than the system's, all those are in the journal and guard processes are there that
/// write them back over the bus. Where that cannot be had, a sentence says so.
///
/// What was left changed is to be repaired before one is made.
class ShellGuard {
  public:
    /// `connection` is the name on the bus of the one that ramps are sent over. The loop must
    /// outlive the guard.
    ShellGuard(const Shell& shell, JournalFile file, std::string connection, RunLoop& runLoop);

    /// What the CRTC is to be given back.
    void keep(std::uint32_t crtc, const Ramp& system);

    /// To be called before the CRTC gets that ramp.
    void willWrite(std::uint32_t crtc, const Ramp& ramp);

    /// To be called when everything that was written is in force.
    void allIsWritten();

  private:
    struct Crtc {
        Ramp system;
        bool changed = false; // holds another ramp, written here
    };

    void store();

    JournalFile file_;
    std::string connection_;
    Guards guards_;
    std::map<std::uint32_t, Crtc> crtcs_;
    bool isProtecting_ = false; // while any CRTC is changed
    bool isStored_ = false;     // the journal is there, as it should be
    bool failureLogged_ = false;
};

} // namespace nocturo
