#pragma once

#include "platform/x11/xcb_handles.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace nocturo::rig {

/// Red, green and blue entries, 0 to 65535.
using Channels = std::array<std::vector<std::uint16_t>, 3>;

struct Output {
    std::uint32_t id = 0;
    std::string name;
    std::uint32_t crtc = 0;         // 0 when it is off
    std::uint32_t possibleCrtc = 0; // the first that could drive it
};

/// A connection of the test's own to an X server, to see and do what another program would. Every
/// member returns once the server has answered, and throws std::runtime_error when the server
/// refuses.
class XClient {
  public:
    explicit XClient(const std::string& display);

    /// In the server's order.
    std::vector<Output> outputs();
    /// The CRTC that drives the output, or would if it were on.
    std::uint32_t crtcOf(const std::string& name);

    std::size_t rampSize(std::uint32_t crtc);
    Channels ramp(std::uint32_t crtc);
    Channels ramp(const std::string& output) { return ramp(crtcOf(output)); }
    void setRamp(std::uint32_t crtc, const Channels& ramp);
    void setRamp(const std::string& output, const Channels& ramp) { setRamp(crtcOf(output), ramp); }

    /// Makes the numbers a property of the root window, as a window manager would.
    void setRootProperty(const std::string& name, const std::vector<std::uint32_t>& numbers) {
        setRootProperty(name, 32, numbers.size(), numbers.data());
    }
    /// The same with bytes, such as a profile's.
    void setRootBytes(const std::string& name, const std::vector<std::uint8_t>& bytes) {
        setRootProperty(name, 8, bytes.size(), bytes.data());
    }
    std::uint32_t atom(const std::string& name);

    void setScreenSize(int width, int height);
    /// Makes a mode for switchOn.
    std::uint32_t createMode(int width, int height);
    void switchOn(const Output& output, std::uint32_t mode, int x, int y);
    void switchOff(const Output& output);
    void setEdid(const Output& output, const std::vector<std::uint8_t>& edid);

  private:
    void setRootProperty(const std::string& name, std::uint8_t format, std::size_t count,
                         const void* data);
    void check(xcb_void_cookie_t cookie, const char* what);

    XcbConnection connection_;
    std::uint32_t root_ = 0;
};

} // namespace nocturo::rig
