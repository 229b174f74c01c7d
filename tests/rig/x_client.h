#pragma once

#include "x11/xcb_handles.h"

#include <array>
#include <string>
#include <vector>

namespace nocturo::rig {

/// Red, green and blue entries, 0 to 65535.
using Channels = std::array<std::vector<std::uint16_t>, 3>;

/// A connection of the test's own to an X server, to see and do what another program would. Every
/// member returns once the server has done it, and throws std::runtime_error when the server
/// refuses.
class XClient {
  public:
    explicit XClient(const std::string& display);

    /// The CRTC that drives the output, or would if it were on.
    std::uint32_t crtcOf(const std::string& output) { return outputCalled(output).crtc; }

    Channels ramp(std::uint32_t crtc);
    Channels ramp(const std::string& output) { return ramp(crtcOf(output)); }
    void setRamp(std::uint32_t crtc, const Channels& ramp);
    void setRamp(const std::string& output, const Channels& ramp) { setRamp(crtcOf(output), ramp); }

    std::uint32_t root() const { return root_; }

    /// Makes the numbers a property of the root window, as a window manager would.
    void setRootProperty(const std::string& name, const std::vector<std::uint32_t>& numbers) {
        setRootProperty(name, 32, numbers.size(), numbers.data());
    }
    /// The same with bytes, such as a profile's.
    void setRootBytes(const std::string& name, const std::vector<std::uint8_t>& bytes) {
        setRootProperty(name, 8, bytes.size(), bytes.data());
    }
    /// What the property of the root window holds, whatever its format; empty without one.
    std::vector<std::uint8_t> rootBytes(const std::string& name);
    void setEdid(const std::string& output, const std::vector<std::uint8_t>& edid);
    std::uint32_t atom(const std::string& name);

    /// From the first call on, the texts that programs broadcast about starts since the last call.
    std::string startupMessages();

    /// Keys are evdev codes, masks are the protocol's (XCB_MOD_MASK_...).
    void press(int key) { fake(XCB_KEY_PRESS, key); }
    void release(int key) { fake(XCB_KEY_RELEASE, key); }
    /// Presses the keys in this order and releases them in the opposite one.
    void type(const std::vector<int>& keys);
    /// The modifiers that are held or locked.
    int modifiers();
    /// Claims the key with exactly these modifiers; false when another program holds it.
    bool grab(int key, int modifiers);
    void ungrab(int key, int modifiers);

  private:
    struct Output {
        std::uint32_t id = 0;
        std::uint32_t crtc = 0; // each has only one that could drive it
    };

    void fake(std::uint8_t event, int key);
    void setRootProperty(const std::string& name, std::uint8_t format, std::size_t count,
                         const void* data);
    Output outputCalled(const std::string& name);

    XcbConnection connection_;
    xcb_connection_t* raw_ = connection_.get();
    std::uint32_t root_ = 0;
};

} // namespace nocturo::rig
