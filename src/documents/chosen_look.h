#pragma once

#include "base/result.h"
#include "documents/effect_document.h"

#include <optional>
#include <string>
#include <string_view>

namespace nocturo {

class Looks;
struct Look;

/// Which look is in force, and the ways from one to the next. A look is applied as one change of
/// the settings, so that no display ever shows anything between two looks; whether the effect is on
/// stays as it is. Main thread only.
class ChosenLook {
  public:
    /// `looks` must outlive this.
    explicit ChosenLook(Looks& looks) : looks_(looks) {}

    Looks& looks() { return looks_; }

    /// The look that the settings show now, whoever set them: the one that was applied last where
    /// several do. Null where none does. Valid until the looks change.
    const Look* inForce();

    /// Its name; empty where none is.
    std::string nameInForce();

    Result<void> apply(std::string_view name);

    /// Applies the look after or before the one in force, round and round; from none, the first or
    /// the last.
    Result<void> applyNext();
    Result<void> applyPrevious();

    /// Goes back to what was there before the last look was applied; once more returns to that
    /// look.
    Result<void> goBack();

    /// Keeps what is in force as a look of the user's own.
    Result<void> save(const std::string& name);
    Result<void> rename(std::string_view name, const std::string& to);

  private:
    Result<void> applyNeighbor(bool next);
    void change(const EffectDocument& effects);

    Looks& looks_;
    std::string lastApplied_; // its name
    std::optional<EffectDocument> before_;
};

} // namespace nocturo
