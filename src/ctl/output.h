#pragma once

#include <string>
#include <string_view>

namespace nocturo {

/// The text with every control character but the end of a line, and every one that turns the
/// direction of writing, in the manner of JSON ("\u001b"): names come from anywhere, and a terminal
/// would obey them. The text is UTF-8.
std::string visible(std::string_view text);

/// Writes to standard output what visible() makes of the text. Throws Failure where that fails, as
/// on a full disk.
void print(std::string_view text);

/// Standard output for who writes as things happen, whether anybody reads or not: never waits.
class PatientOutput {
  public:
    /// Whether all that was written has been taken.
    bool isDone() const { return rest_.empty(); }

    /// Writes what visible() makes of the text, after all before it.
    void write(std::string_view text) { rest_ += visible(text); }

    /// Lets whoever reads take what they can without being waited for; to be called when standard
    /// output can be written to. Throws Failure where that fails.
    void goOn();

  private:
    std::string rest_;
};

} // namespace nocturo
