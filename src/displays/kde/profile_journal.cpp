#include "displays/kde/profile_journal.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <utility>
#include <vector>

// The file is a list of texts, each with a zero byte after it: what it is, whose it is, then each
// entry's key, source and path, and what it is once more, so that a file that is cut short is
// known.

namespace nocturo {

namespace {

constexpr std::string_view kTitle = "Nocturo's color profiles, 1";
constexpr std::string_view kFileName = "profiles";
constexpr std::string_view kEffectName = "nocturo-effect-";
constexpr std::size_t kEntryTexts = 3;

std::vector<std::string> textsOf(std::string_view bytes) {
    std::vector<std::string> texts;
    for (auto end = bytes.find('\0'); end != std::string_view::npos; end = bytes.find('\0')) {
        texts.emplace_back(bytes.substr(0, end));
        bytes.remove_prefix(end + 1);
    }
    return texts;
}

void append(std::string& bytes, std::string_view text) {
    bytes += text;
    bytes += '\0';
}

} // namespace

std::string effectProfileName(const std::string& connector, unsigned turn) {
    std::string name =
        std::string(kEffectName) + connector + (turn % 2 == 0 ? "-a" : "-b") + ".icc";
    std::replace(name.begin(), name.end(), '/', '_');
    return name;
}

bool isEffectProfile(const std::filesystem::path& path) {
    return path.filename().string().starts_with(kEffectName);
}

ProfileJournal::ProfileJournal(const std::filesystem::path& directory)
    : directory_(directory), file_(directory, std::string(kFileName)) {
    const Result<std::string> bytes = file_.read();
    if (bytes) {
        parse(*bytes);
    }
}

void ProfileJournal::parse(std::string_view bytes) {
    const std::vector<std::string> texts = textsOf(bytes);
    const bool isWhole = texts.size() >= kEntryTexts && texts.size() % kEntryTexts == 0 &&
                         texts.front() == kTitle && texts.back() == kTitle;
    if (!isWhole) {
        file_.setAside();
        return;
    }
    run_ = texts[1];
    for (std::size_t i = 2; i + kEntryTexts < texts.size(); i += kEntryTexts) {
        std::uint32_t source = 0;
        const std::string& digits = texts[i + 1];
        std::from_chars(digits.data(), digits.data() + digits.size(), source);
        entries_[texts[i]] = {texts[i + 2], static_cast<ColorSource>(source)};
    }
}

const ProfileSetting* ProfileJournal::find(const std::string& key) const {
    const auto entry = entries_.find(key);
    return entry != entries_.end() ? &entry->second : nullptr;
}

Result<void> ProfileJournal::keep(const std::string& key, const ProfileSetting& own) {
    const ProfileSetting* known = find(key);
    if (isStored_ && known != nullptr && *known == own) {
        return {};
    }
    entries_[key] = own;
    return store();
}

void ProfileJournal::forget(const std::string& key) {
    if (entries_.erase(key) == 0) {
        return;
    }
    // Failing is no error: an entry of an output with its own profile is dropped when it is found.
    if (entries_.empty()) {
        static_cast<void>(file_.remove());
    } else {
        static_cast<void>(store());
    }
}

void ProfileJournal::setRun(const std::string& run) {
    isStored_ = isStored_ && run_ == run;
    run_ = run;
}

Result<void> ProfileJournal::store() {
    std::string bytes;
    append(bytes, kTitle);
    append(bytes, run_);
    for (const auto& [key, own] : entries_) {
        append(bytes, key);
        append(bytes, std::to_string(static_cast<std::uint32_t>(own.source)));
        append(bytes, own.path);
    }
    append(bytes, kTitle);
    makePrivateDirectories(directory_);
    Result<void> written = file_.write(bytes, Durability::survivesPowerCuts);
    isStored_ = written.has_value();
    return written;
}

} // namespace nocturo
