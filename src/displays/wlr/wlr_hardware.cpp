#include "displays/wlr/wlr_hardware.h"

#include "base/file_descriptor.h"
#include "base/log.h"
#include "displays/kernel_edid.h"
#include "displays/wlr/gamma_control_protocol.h"
#include "wayland/wayland_connection.h"

#include <sys/mman.h>

#include <utility>

// Who asks for an output that another program controls is told so, by the event `failed`, but not
// everywhere: wlroots before 0.16 takes the output away from the program that has it and tells the
// newcomer nothing at all. There, who asks a second time gets it. So an answer is waited for only
// for a moment, and then asked for once more.

namespace nocturo {

namespace {

using namespace std::chrono_literals;

constexpr std::uint32_t kAssumedSize = 256;
constexpr auto kPatience = 200ms;
constexpr int kAttempts = 2;
// While another program has an output it is asked for again no more often than this.
constexpr auto kPause = 30s;
// One that did not answer at all, perhaps because it hangs, is left in peace as long as this.
constexpr auto kPauseAfterSilence = 5s;

/// A file in memory with the ramp as the protocol wants it: all red, all green, all blue. A new one
/// for each write, because the compositor reads it whenever it likes.
FileDescriptor fileWith(const Ramp& ramp) {
    FileDescriptor file(memfd_create("nocturo-ramp", MFD_CLOEXEC));
    for (const auto* channel : {&ramp.red, &ramp.green, &ramp.blue}) {
        const std::string_view bytes(reinterpret_cast<const char*>(channel->data()),
                                     channel->size() * sizeof(channel->front()));
        if (writeAll(file.get(), bytes) != 0) {
            return {};
        }
    }
    // Some compositors read on from where the writer stopped.
    return lseek(file.get(), 0, SEEK_SET) == 0 ? std::move(file) : FileDescriptor();
}

} // namespace

struct WlrHardware::Control {
    wl_proxy* proxy = nullptr;
    std::uint32_t size = kAssumedSize;  // as told last
    bool answered = false;              // for `proxy`
    Obstacle obstacle = Obstacle::none; // the last time that the compositor was asked
    std::chrono::steady_clock::time_point askAgain{};
    Ramp written; // while there is a proxy
    Ramp system;  // empty until it is known
    WlrHardware* hardware = nullptr;
};

struct WlrHardware::Listeners {
    static void gammaSize(void* data, wl_proxy* /*proxy*/, std::uint32_t size) {
        auto* control = static_cast<Control*>(data);
        control->answered = true;
        if (std::exchange(control->size, size) != size) {
            ++control->hardware->ownGeneration_;
        }
    }
    static void failed(void* data, wl_proxy* /*proxy*/) {
        auto* control = static_cast<Control*>(data);
        control->answered = true;
        control->hardware->lose(*control);
    }
    static constexpr GammaControlListener kControl = {gammaSize, failed};
};

bool WlrHardware::isOfferedBy(const WaylandConnection& compositor) {
    return compositor.offers(kGammaControlManagerInterface.name);
}

WlrHardware::WlrHardware(std::unique_ptr<WaylandConnection> compositor,
                         std::filesystem::path edidDirectory)
    : compositor_(std::move(compositor)), edidDirectory_(std::move(edidDirectory)),
      manager_(compositor_->bind(kGammaControlManagerInterface, 1)) {
    compositor_->setOutputGoneHandler([this](const WaylandOutput& output) {
        if (const auto found = controls_.find(output.global); found != controls_.end()) {
            release(found->second);
            controls_.erase(found);
        }
    });
}

WlrHardware::~WlrHardware() {
    for (auto& [crtc, control] : controls_) {
        release(control);
    }
    compositor_->processEvents();
    wl_proxy_destroy(manager_);
}

std::uint64_t WlrHardware::topologyGeneration() {
    compositor_->processEvents();
    return compositor_->outputsGeneration() + ownGeneration_;
}

bool WlrHardware::listHeads(std::vector<Head>& heads) {
    heads.clear();
    if (compositor_->isLost()) {
        return false;
    }
    for (const WaylandOutput* output : compositor_->outputs()) {
        const auto control = controls_.find(output->global);
        Head& head = heads.emplace_back();
        head.connector = output->name;
        head.edid = kernelEdid(edidDirectory_, output->name);
        head.crtc = output->global;
        head.rampSize = control != controls_.end() ? control->second.size : kAssumedSize;
        head.bounds = {.x = static_cast<double>(output->x),
                       .y = static_cast<double>(output->y),
                       .width = static_cast<double>(output->width),
                       .height = static_cast<double>(output->height)};
        head.modeGeneration = output->modeGeneration;
        if (control != controls_.end()) {
            head.obstacle = control->second.obstacle;
        }
    }
    return true;
}

WlrHardware::Control& WlrHardware::controlOf(std::uint32_t crtc) {
    return controls_[crtc];
}

const WaylandOutput* WlrHardware::outputOf(std::uint32_t crtc) const {
    return compositor_->output(crtc);
}

void WlrHardware::expectWrite(std::uint32_t crtc) {
    take(crtc, controlOf(crtc));
}

/// Sees to it that there is a control whose size is known; false where there is none to be had.
bool WlrHardware::take(std::uint32_t crtc, Control& control) {
    const WaylandOutput* output = outputOf(crtc);
    if (output == nullptr || control.proxy != nullptr) {
        return control.proxy != nullptr;
    }
    const auto now = std::chrono::steady_clock::now();
    if (now < silentUntil_ || (control.obstacle != Obstacle::none && now < control.askAgain)) {
        return false;
    }
    control.askAgain = now + kPause;
    control.answered = false;
    for (int attempt = 0; attempt < kAttempts && !control.answered; ++attempt) {
        release(control);
        ask(*output, control);
        compositor_->waitUntil([&] { return control.answered; }, kPatience);
    }
    if (!control.answered) {
        release(control);
        silentUntil_ = std::chrono::steady_clock::now() + kPauseAfterSilence;
        if (noteObstacle(control, Obstacle::refused)) {
            logInfo(kLogDisplays, "The compositor does not answer.");
        }
    }
    if (control.proxy == nullptr) {
        return false;
    }
    noteObstacle(control, Obstacle::none);
    return true;
}

void WlrHardware::ask(const WaylandOutput& output, Control& control) {
    control.hardware = this;
    control.proxy = wl_proxy_marshal_flags(manager_, kGetGammaControl, &kGammaControlInterface, 1,
                                           0, nullptr, output.proxy);
    wl_proxy_add_listener(
        control.proxy,
        reinterpret_cast<void (**)()>(const_cast<GammaControlListener*>(&Listeners::kControl)),
        &control);
}

void WlrHardware::release(Control& control) {
    if (control.proxy != nullptr) {
        wl_proxy_marshal_flags(control.proxy, kDestroyGammaControl, nullptr, 1,
                               WL_MARSHAL_FLAG_DESTROY);
        control.proxy = nullptr;
    }
    control.answered = false;
    control.written = {};
}

/// Whether that is news.
bool WlrHardware::noteObstacle(Control& control, Obstacle obstacle) {
    const bool isNews = std::exchange(control.obstacle, obstacle) != obstacle;
    ownGeneration_ += isNews ? 1 : 0;
    return isNews;
}

/// Another program has the output, or it has no ramp.
void WlrHardware::lose(Control& control) {
    release(control);
    control.answered = true; // no second attempt
    if (noteObstacle(control, Obstacle::heldByOther)) {
        logInfo(kLogDisplays, "The compositor lets Nocturo not change an output: another program "
                              "has it, or it has no gamma ramp.");
    }
}

bool WlrHardware::readRamp(std::uint32_t crtc, Ramp& ramp) {
    if (outputOf(crtc) == nullptr) {
        return false;
    }
    const Control& control = controlOf(crtc);
    const auto size = ramp.size();
    const Ramp& shown = control.written.size() != 0 ? control.written : control.system;
    ramp = shown.size() != 0 ? resampledRamp(shown, size) : identityRamp(size);
    return true;
}

bool WlrHardware::writeRamp(std::uint32_t crtc, const Ramp& ramp) {
    Control& control = controlOf(crtc);
    if (ramp == control.system) {
        release(control);
        noteObstacle(control, Obstacle::none);
        compositor_->processEvents();
        return outputOf(crtc) != nullptr;
    }
    compositor_->processEvents();
    // What a compositor that hangs has not taken in must not pile up until the connection breaks.
    if (compositor_->isFull() || !take(crtc, control) || ramp.size() != control.size) {
        return false;
    }
    const FileDescriptor file = fileWith(ramp);
    if (file.get() < 0) {
        return false;
    }
    wl_proxy_marshal_flags(control.proxy, kSetGamma, nullptr, 1, 0, file.get());
    control.written = ramp;
    compositor_->processEvents();
    return control.proxy != nullptr;
}

void WlrHardware::keepSystemRamp(std::uint32_t crtc, const Ramp& ramp) {
    controlOf(crtc).system = ramp;
}

void WlrHardware::waitForWrites() {
    compositor_->sync(kPatience);
}

} // namespace nocturo
