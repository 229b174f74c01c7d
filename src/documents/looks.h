#pragma once

#include "base/result.h"
#include "documents/effect_document.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nocturo {

class NotificationCenter;

/// Posted on the local notification center after looks were saved, renamed, deleted or put in
/// another order, here or by another program.
inline constexpr std::string_view kLooksDidChangeNotification = "NocturoLooksDidChangeNotification";

/// A combination of effects with a name: an effect document in a directory of looks.
struct Look {
    std::string name;  // that of its file; English for those that come with Nocturo
    std::string title; // as people read it, in the user's language
    bool isOwn = false;
    EffectDocument effects; // as far as the window's sliders go
};

/// What people read as the name of a look.
std::string lookTitle(const std::string& name, bool isOwn);

/// The looks that come with Nocturo and the user's own, one of which hides a look of the same name.
/// Read when first needed and again when a directory has changed. What is no ordinary file, no
/// document or has no name that can be shown is left out, as is what lies beyond the limits.
/// Problems are sentences for the user. Main thread only.
class Looks {
  public:
    static constexpr std::size_t kMost = 100;      // in one directory
    static constexpr std::size_t kMostSeen = 2000; // files of a directory, looks or not
    static constexpr std::size_t kLargest = 65536; // bytes

    /// Neither directory need exist.
    Looks(std::filesystem::path shipped, std::filesystem::path own, NotificationCenter& center);

    /// Where they are.
    std::vector<std::filesystem::path> directories() const { return {shipped_, own_}; }

    /// In the user's order. Valid until the next call that is not const.
    const std::vector<Look>& all();

    /// By name or title, whatever the case of ASCII letters; null where there is none.
    const Look* named(std::string_view name);

    /// Keeps the effects as a look of the user's own; one of that name is replaced.
    Result<void> save(const std::string& name, const EffectDocument& effects);

    // Of the user's own.
    Result<void> rename(std::string_view name, const std::string& to);
    Result<void> remove(std::string_view name);

    /// Another program may have changed one of the directories.
    void directoriesDidChange();

    /// Puts any look at a place, 0 or more; beyond the last one is last.
    Result<void> move(std::string_view name, std::size_t place);

  private:
    std::vector<Look> readDirectory(const std::filesystem::path& directory, bool isOwn) const;
    void read();
    Result<const Look*> ownLook(std::string_view name);
    std::filesystem::path file(const std::string& name) const;
    Result<void> changed();

    std::filesystem::path shipped_;
    std::filesystem::path own_;
    NotificationCenter& center_;
    std::vector<Look> looks_;
    std::optional<std::pair<std::filesystem::file_time_type, std::filesystem::file_time_type>>
        readAt_; // when the directories had last changed
};

} // namespace nocturo
