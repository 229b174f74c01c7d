#pragma once

#include "displays/gnome/desktop_shell.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace nocturo {

/// What a shell is asked, and what it answers. Answers are waited for half a second unless told
/// otherwise; a shell that does not answer is asked for its displays and then left in peace, until
/// it answers that or for some seconds.
class ShellQuestions {
  public:
    /// What an answer for the displays says about them.
    enum class News { none, same, others };

    struct RampAnswer {
        bool isStale = false;
        std::optional<Ramp> ramp; // as rampIn() has it
    };

    /// `heard` is called from the bus with every answer for the displays. The bus must outlive
    /// this, and its handlers are called while an answer is waited for.
    ShellQuestions(const Bus& bus, const Shell& shell, std::function<void(News)> heard);

    /// The displays as told last; nothing while they are not known.
    const std::optional<ShellResources>& resources() const { return resources_; }
    /// For every call.
    std::uint32_t serial() const { return resources_ ? resources_->serial : 0; }

    /// Asks for the displays, without waiting.
    void askForResources();
    /// Asks and waits; whether they are known then.
    bool fetchResources(std::chrono::milliseconds patience = kPatience);
    void forgetResources() { resources_.reset(); }

    /// Asks for a ramp without waiting. Nothing is asked of a shell that is silent.
    void askForRamp(std::uint32_t crtc);
    /// Waits for the answer, and asks where nobody has; nothing where none came.
    std::optional<RampAnswer> takeRamp(std::uint32_t crtc);

    /// Waits until `isDone`; false where it took too long, which counts as silence.
    bool waitUntil(const std::function<bool()>& isDone,
                   std::chrono::milliseconds patience = kPatience);
    bool isSilent() const { return std::chrono::steady_clock::now() < silentUntil_; }
    void noteSilence();

    static constexpr std::chrono::milliseconds kPatience{500};

  private:
    struct Question {
        std::unique_ptr<BusSlot> call; // null once it is answered
        RampAnswer answer;
    };

    void takeResources(sd_bus_message* answer);

    const Bus& bus_;
    const Shell& shell_;
    std::function<void(News)> heard_;
    std::optional<ShellResources> resources_;
    std::unique_ptr<BusSlot> question_; // for the displays
    bool askAgain_ = false;             // they have changed since the question
    std::map<std::uint32_t, Question> ramps_;
    std::chrono::steady_clock::time_point silentUntil_{};
};

} // namespace nocturo
