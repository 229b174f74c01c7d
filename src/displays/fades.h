#pragma once

#include <chrono>
#include <functional>
#include <utility>

namespace nocturo {

/// How long what is shown takes to become what is wanted. Whoever changes something says so for as
/// long as a Change lives; FadingHardware asks while ramps are written. Main thread only.
class Fades {
  public:
    using Length = std::chrono::milliseconds;

    /// What is on its way when a change is made.
    enum class Former { goesOn, ends };

    /// What is written while one lives takes that long; 0 is at once, as it is without one. What is
    /// on its way already goes on as it was, or ends with this at its result. Of several that live
    /// at a time the first counts. The fades may be null, and must outlive it.
    class [[nodiscard]] Change {
      public:
        Change(Fades* fades, Length length, Former former = Former::goesOn)
            : fades_(fades != nullptr && !fades->isChanging_ ? fades : nullptr), former_(former) {
            if (fades_ != nullptr) {
                fades_->isChanging_ = true;
                fades_->length_ = length;
            }
        }
        ~Change() {
            if (fades_ != nullptr) {
                fades_->isChanging_ = false;
                fades_->length_ = Length::zero();
                if (former_ == Former::ends) {
                    fades_->finish();
                }
            }
        }
        Change(const Change&) = delete;
        Change& operator=(const Change&) = delete;

      private:
        Fades* fades_; // null where another change counts
        Former former_;
    };

    /// Of the change that is being made.
    Length length() const { return length_; }

    /// Has every fade end now, at its result.
    void finish() const {
        if (finish_) {
            finish_();
        }
    }
    /// Who does that; nothing for nobody.
    void setFinish(std::function<void()> finish) { finish_ = std::move(finish); }

  private:
    bool isChanging_ = false;
    Length length_{0};
    std::function<void()> finish_;
};

} // namespace nocturo
