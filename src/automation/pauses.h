#pragma once

#include "automation/who_wins.h"
#include "base/result.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace nocturo {

/// The pauses that the user has asked for: one that ends by the clock or by hand, which outlives
/// the program in a file, and those of programs that run, which do not.
class Pauses {
  public:
    /// `file` is an absolute path and need not exist.
    explicit Pauses(std::filesystem::path file) : file_(std::move(file)) {}

    /// Goes on with the pause of a former run, unless it is over.
    void restore(Moment now);

    /// Without an end it lasts until it is ended. Replaces an earlier one.
    void begin(std::optional<Moment> until);

    /// While programs ask for one, the last of which may be a command in words.
    void hold(std::string command) { held_ = std::move(command); }
    void release() { held_.reset(); }

    /// Ends all; false where there was none.
    bool end();

    /// Ends what is over by the clock; false where nothing is.
    bool expire(Moment now);

    /// Off until all have ended.
    std::optional<Claim> claim() const;

  private:
    struct Timed {
        std::optional<Moment> until;
    };
    void forget();

    std::filesystem::path file_;
    std::optional<Timed> timed_;
    std::optional<std::string> held_; // the command
};

/// When a pause ends that was asked for in words: "30m", "1h30m", "until 18:00", "until tomorrow",
/// which is six in the morning. Nothing for empty words: no end. A sentence for the user where they
/// are none of these.
Result<std::optional<Moment>> endOfPause(std::string_view words, Moment now);

} // namespace nocturo
