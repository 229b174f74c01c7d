#include "displays/gnome/shell_questions.h"

#include "base/log.h"

#include <utility>

namespace nocturo {

namespace {

using namespace std::chrono_literals;

constexpr auto kPauseAfterSilence = 5s;

} // namespace

ShellQuestions::ShellQuestions(const Bus& bus, const Shell& shell, std::function<void(News)> heard)
    : bus_(bus), shell_(shell), heard_(std::move(heard)) {}

bool ShellQuestions::waitUntil(const std::function<bool()>& isDone,
                               std::chrono::milliseconds patience) {
    const bool wasSilent = isSilent();
    if (bus_.serveUntil(isDone, wasSilent ? 0ms : patience)) {
        return true;
    }
    if (!wasSilent) {
        noteSilence();
    }
    return false;
}

void ShellQuestions::noteSilence() {
    silentUntil_ = std::chrono::steady_clock::now() + kPauseAfterSilence;
    logInfo(kLogDisplays, std::string(shell_.names->desktop) + " does not answer.");
    if (question_ == nullptr) {
        askForResources();
    }
}

void ShellQuestions::askForResources() {
    askAgain_ = question_ != nullptr;
    if (!askAgain_) {
        question_ = bus_.call(resourcesCall(bus_, *shell_.names),
                              [this](sd_bus_message* answer) { takeResources(answer); });
    }
}

void ShellQuestions::takeResources(sd_bus_message* answer) {
    question_.reset();
    if (askAgain_) {
        askForResources();
        return;
    }
    if (sd_bus_message_is_method_error(answer, nullptr) > 0) {
        heard_(News::none); // as if it had not answered
        return;
    }
    silentUntil_ = {};
    auto found = resourcesIn(answer);
    const bool isSame = found && resources_ && found->serial == resources_->serial;
    resources_ = std::move(found);
    heard_(isSame ? News::same : News::others);
}

bool ShellQuestions::fetchResources(std::chrono::milliseconds patience) {
    askForResources();
    return waitUntil([this] { return question_ == nullptr; }, patience) && resources_;
}

void ShellQuestions::askForRamp(std::uint32_t crtc) {
    if (isSilent()) {
        return;
    }
    Question& question = ramps_[crtc];
    question = {};
    question.call = bus_.call(readRampCall(bus_, *shell_.names, serial(), crtc),
                              [&question](sd_bus_message* answer) {
                                  question.answer = {isStale(answer), rampIn(answer)};
                                  question.call.reset();
                              });
}

std::optional<ShellQuestions::RampAnswer> ShellQuestions::takeRamp(std::uint32_t crtc) {
    for (int attempt = 0; attempt < 2 && !isSilent(); ++attempt) {
        if (!ramps_.contains(crtc)) {
            askForRamp(crtc);
        }
        const Question& asked = ramps_[crtc];
        const bool came = waitUntil([&] { return asked.call == nullptr; });
        RampAnswer answer = asked.answer;
        ramps_.erase(crtc);
        if (!came) {
            break;
        }
        if (!answer.isStale || !fetchResources()) {
            return answer;
        }
    }
    return std::nullopt;
}

} // namespace nocturo
