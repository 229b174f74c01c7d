#include "documents/looks.h"

#include "base/files.h"
#include "base/notification_center.h"
#include "base/texts/translated.h"
#include "documents/current_effects.h"
#include "documents/effect_document_file.h"
#include "settings/property_lists/property_list_file.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <strings.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace nocturo {

namespace {

constexpr const char* kOrderFile = "order.plist";
constexpr const char* kOrder = "Names";
constexpr std::size_t kLongestName = 100; // bytes

struct Shipped {
    std::string_view name;
    ListedText title;
};

// In this order.
constexpr auto kShipped = std::to_array<Shipped>({
    {"Night reading", ListedText("Night reading")},
    {"Warm evening", ListedText("Warm evening")},
    {"Red night vision", ListedText("Red night vision")},
    {"Just dimmer", ListedText("Just dimmer")},
    {"Paper tint", ListedText("Paper tint")},
});

const Shipped* shippedCalled(std::string_view name) {
    const auto* found = std::find_if(kShipped.begin(), kShipped.end(),
                                     [&](const Shipped& each) { return each.name == name; });
    return found != kShipped.end() ? found : nullptr;
}

/// The bytes of the character that the text begins with; 0 where it is none that can be shown or
/// none at all.
std::size_t shownCharacter(std::string_view text) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    const unsigned lead = byte(0);
    const std::size_t size = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (size > text.size() || (lead >= 0x80 && lead < 0xC2) || lead > 0xF4) {
        return 0;
    }
    unsigned code = size == 1 ? lead : lead & (0x7FU >> size);
    for (std::size_t at = 1; at < size; ++at) {
        if ((byte(at) & 0xC0U) != 0x80) {
            return 0;
        }
        code = code << 6U | (byte(at) & 0x3FU);
    }
    constexpr std::array<unsigned, 4> kLeast = {0x20, 0xA0, 0x800, 0x10000};
    const bool isShown = code >= kLeast[size - 1] && code != 0x7F && code <= 0x10FFFF &&
                         (code < 0xD800 || code > 0xDFFF) && (code < 0x200E || code > 0x200F) &&
                         (code < 0x2028 || code > 0x202E) && (code < 0x2066 || code > 0x2069);
    return isShown ? size : 0;
}

/// Whether it can be a file and be shown in a line, and stands for no look and no option where
/// looks are named.
bool isName(std::string_view name) {
    if (name.empty() || name.size() > kLongestName || name == "off" || name.starts_with('-') ||
        name.starts_with('.') || name.starts_with(' ') || name.ends_with(' ') ||
        name.find('/') != name.npos) {
        return false;
    }
    while (!name.empty()) {
        const std::size_t size = shownCharacter(name);
        if (size == 0) {
            return false;
        }
        name.remove_prefix(size);
    }
    return true;
}

bool isSame(const std::string& left, std::string_view right) {
    return left.size() == right.size() &&
           ::strncasecmp(left.data(), right.data(), right.size()) == 0;
}

std::filesystem::file_time_type changeOf(const std::filesystem::path& directory) {
    std::error_code error;
    const auto time = std::filesystem::last_write_time(directory, error);
    return error ? std::filesystem::file_time_type::min() : time;
}

std::vector<std::string> readOrder(const std::filesystem::path& directory) {
    const auto contents = readPropertyListFile(directory / kOrderFile);
    const auto found = contents.dictionary.find(kOrder);
    const auto* names =
        found != contents.dictionary.end() ? found->second.as<PropertyArray>() : nullptr;
    std::vector<std::string> order;
    for (const PropertyValue& each : names != nullptr ? *names : PropertyArray()) {
        if (const auto* name = each.as<std::string>(); name != nullptr && order.size() < 1000) {
            order.push_back(*name);
        }
    }
    return order;
}

tl::unexpected<Problem> noLook(std::string_view name) {
    return failed(translated("There is no look \"%@\".", {std::string(name)}));
}

tl::unexpected<Problem> noName(const std::string& name) {
    return failed(translated("\"%@\" cannot be the name of a look.", {name}));
}

tl::unexpected<Problem> notKept(const std::filesystem::path& place, const std::string& why) {
    return failed(translated("Could not save settings at \"%@\": %@.", {place.string(), why}));
}

} // namespace

std::string lookTitle(const std::string& name, bool isOwn) {
    const Shipped* shipped = isOwn ? nullptr : shippedCalled(name);
    return shipped != nullptr ? shipped->title.translated() : name;
}

Looks::Looks(std::filesystem::path shipped, std::filesystem::path own, NotificationCenter& center)
    : shipped_(std::move(shipped)), own_(std::move(own)), center_(center) {}

std::vector<Look> Looks::readDirectory(const std::filesystem::path& directory, bool isOwn) const {
    std::vector<Look> looks;
    std::error_code error;
    std::filesystem::directory_iterator entry(directory, error);
    for (std::size_t seen = 0; !error && entry != std::filesystem::directory_iterator() &&
                               seen < kMostSeen && looks.size() < kMost;
         ++seen, entry.increment(error)) {
        const std::filesystem::path path = entry->path();
        const std::string name = path.stem();
        std::error_code unknown;
        if (path.extension() != "." + std::string(kEffectDocumentExtension) || !isName(name) ||
            !entry->is_regular_file(unknown) || entry->file_size(unknown) > kLargest) {
            continue;
        }
        if (const auto effects = readEffectDocument(path)) {
            looks.push_back({name, lookTitle(name, isOwn), isOwn, withinRanges(*effects)});
        }
    }
    std::ranges::sort(looks, {}, &Look::name);
    return looks;
}

void Looks::read() {
    looks_ = readDirectory(shipped_, false);
    std::ranges::stable_sort(looks_, {}, [](const Look& look) {
        return shippedCalled(look.name) != nullptr ? shippedCalled(look.name) : kShipped.end();
    });
    for (Look& own : readDirectory(own_, true)) {
        const auto hidden = std::ranges::find(looks_, own.name, &Look::name);
        if (hidden != looks_.end()) {
            *hidden = std::move(own);
        } else {
            looks_.push_back(std::move(own));
        }
    }
    const std::vector<std::string> order = readOrder(own_);
    std::ranges::stable_sort(looks_, {}, [&](const Look& look) {
        return std::ranges::find(order, look.name) - order.begin();
    });
}

const std::vector<Look>& Looks::all() {
    const std::pair now(changeOf(shipped_), changeOf(own_));
    if (readAt_ != now) {
        readAt_ = now;
        read();
    }
    return looks_;
}

const Look* Looks::named(std::string_view name) {
    const auto& looks = all();
    auto found = std::ranges::find(looks, name, &Look::name);
    if (found == looks.end()) {
        found = std::ranges::find_if(looks, [&](const Look& each) {
            return isSame(each.name, name) || isSame(each.title, name);
        });
    }
    return found != looks.end() ? &*found : nullptr;
}

std::filesystem::path Looks::file(const std::string& name) const {
    return own_ / (name + "." + std::string(kEffectDocumentExtension));
}

Result<const Look*> Looks::ownLook(std::string_view name) {
    const Look* look = named(name);
    if (look == nullptr) {
        return noLook(name);
    }
    if (!look->isOwn) {
        return failed(
            translated("The look \"%@\" comes with Nocturo and stays as it is.", {look->title}));
    }
    return look;
}

Result<void> Looks::changed() {
    readAt_.reset(); // a file system's clock may be too coarse to tell
    center_.post(kLooksDidChangeNotification);
    return {};
}

void Looks::directoriesDidChange() {
    static_cast<void>(changed());
}

Result<void> Looks::save(const std::string& name, const EffectDocument& effects) {
    if (!isName(name)) {
        return noName(name);
    }
    makePrivateDirectories(own_);
    if (const auto written = writeEffectDocument(file(name), effects); !written) {
        return notKept(file(name), written.error().text);
    }
    return changed();
}

Result<void> Looks::rename(std::string_view name, const std::string& to) {
    const auto look = ownLook(name);
    if (!look) {
        return tl::unexpected(look.error());
    }
    if (!isName(to)) {
        return noName(to);
    }
    if (::renameat2(AT_FDCWD, file((*look)->name).c_str(), AT_FDCWD, file(to).c_str(),
                    RENAME_NOREPLACE) != 0) {
        return errno == EEXIST ? failed(translated("There is a look \"%@\" already.", {to}))
                               : notKept(file(to), std::strerror(errno));
    }
    return changed();
}

Result<void> Looks::remove(std::string_view name) {
    const auto look = ownLook(name);
    if (!look) {
        return tl::unexpected(look.error());
    }
    if (::unlink(file((*look)->name).c_str()) != 0) {
        return notKept(file((*look)->name), std::strerror(errno));
    }
    return changed();
}

Result<void> Looks::move(std::string_view name, std::size_t place) {
    const Look* look = named(name);
    if (look == nullptr) {
        return noLook(name);
    }
    PropertyArray order;
    for (const Look& each : looks_) {
        if (&each != look) {
            order.emplace_back(each.name);
        }
    }
    order.emplace(order.begin() + static_cast<std::ptrdiff_t>(std::min(place, order.size())),
                  look->name);
    makePrivateDirectories(own_);
    if (const auto written =
            writePropertyListFile(own_ / kOrderFile, {{kOrder, std::move(order)}}, 0600);
        !written) {
        return notKept(own_ / kOrderFile, written.error().text);
    }
    return changed();
}

} // namespace nocturo
