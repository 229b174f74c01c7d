// A binary list is a table of objects that refer to each other by number. libplist makes an object
// anew for each reference to it and descends by recursion, so a list of a few hundred bytes, each
// array naming the next one a hundred times, asks for more memory than there is, and a long chain
// overruns the stack. The walk below adds up what the references would spell out and makes nothing.
// It looks for NULs in texts as well, because libplist ends the process over one in a key.

#include "settings/property_lists/binary_list_bounds.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace nocturo {

namespace {

constexpr std::size_t kHeader = 8;   // "bplist00"
constexpr std::size_t kTrailer = 32; // five unused bytes, a sort version, two widths, three numbers
constexpr unsigned kGreatestHeight = 64;
constexpr std::uint64_t kNodeCost = 64; // about what a node takes beside its content
constexpr std::uint64_t kHighestCost = std::uint64_t{1} << 22;

/// What reading one object leads to.
struct Extent {
    unsigned height = 0; // containers below each other, itself included
    std::uint64_t cost = 0;
};

struct Object {
    std::size_t content = 0; // where the payload or the references begin
    std::uint64_t bytes = 0; // of the payload
    std::uint64_t references = 0;
};

class Walk {
  public:
    explicit Walk(std::string_view bytes) : bytes_(bytes) {}

    bool isBounded() { return readTrailer() && extentOf(root_, kGreatestHeight); }

  private:
    enum class State : std::uint8_t { unseen, underWay, measured };
    struct Seen {
        State state = State::unseen;
        Extent extent;
    };

    /// A number of 1 to 8 bytes that must end at `end` or before.
    std::optional<std::uint64_t> number(std::uint64_t at, std::uint64_t width,
                                        std::size_t end) const {
        if (width < 1 || width > 8 || at > end || width > end - at) {
            return std::nullopt;
        }
        std::uint64_t value = 0;
        for (const char byte : bytes_.substr(at, width)) {
            value = value << 8U | static_cast<std::uint8_t>(byte);
        }
        return value;
    }

    bool readTrailer() {
        if (bytes_.size() < kHeader + kTrailer) {
            return false;
        }
        const std::size_t trailer = bytes_.size() - kTrailer;
        offsetWidth_ = static_cast<std::uint8_t>(bytes_[trailer + 6]);
        referenceWidth_ = static_cast<std::uint8_t>(bytes_[trailer + 7]);
        const std::uint64_t count = *number(trailer + 8, 8, bytes_.size());
        root_ = *number(trailer + 16, 8, bytes_.size());
        const std::uint64_t table = *number(trailer + 24, 8, bytes_.size());
        if (offsetWidth_ < 1 || offsetWidth_ > 8 || table < kHeader || table > trailer ||
            count > (trailer - table) / offsetWidth_) {
            return false;
        }
        table_ = static_cast<std::size_t>(table);
        seen_.resize(static_cast<std::size_t>(count));
        return true;
    }

    /// Too long for the marker, a size is an integer object of its own; moves `at` behind it.
    std::optional<std::uint64_t> longSize(std::uint64_t& at) const {
        const auto marker = number(at, 1, table_);
        if (!marker || *marker >> 4U != 0x1 || (*marker & 0xFU) > 3) {
            return std::nullopt;
        }
        const std::uint64_t width = std::uint64_t{1} << (*marker & 0xFU);
        const auto size = number(at + 1, width, table_);
        at += 1 + width;
        return size;
    }

    std::optional<Object> objectAt(std::uint64_t at) const {
        const auto marker = number(at, 1, table_);
        if (at < kHeader || !marker) {
            return std::nullopt;
        }
        const std::uint64_t type = *marker >> 4U;
        const bool isText = type == 0x5 || type == 0x6;
        const bool isCounted = isText || type == 0x4 || type == 0xA || type == 0xD;
        std::uint64_t size = *marker & 0xFU;
        std::uint64_t content = at + 1;
        if (isCounted && size == 0xF) {
            const auto counted = longSize(content);
            if (!counted) {
                return std::nullopt;
            }
            size = *counted;
        }
        // Beyond any list; nothing below can overflow then.
        if (size > bytes_.size()) {
            return std::nullopt;
        }
        Object object{static_cast<std::size_t>(content), 0, 0};
        switch (type) {
        case 0x0: // booleans
            break;
        case 0x1: // integers
        case 0x2: // reals
        case 0x3: // dates
            object.bytes = std::uint64_t{1} << size;
            break;
        case 0x4: // data
        case 0x5: // ASCII
            object.bytes = size;
            break;
        case 0x6: // UTF-16
            object.bytes = 2 * size;
            break;
        case 0x8: // object references of archives
            object.bytes = size + 1;
            break;
        case 0xA: // arrays
            object.references = size;
            break;
        case 0xD: // dictionaries
            object.references = 2 * size;
            break;
        default:
            return std::nullopt;
        }
        const std::uint64_t taken = object.bytes + object.references * referenceWidth_;
        if (taken > table_ - content || (isText && holdsNul(object, type == 0x6 ? 2 : 1))) {
            return std::nullopt;
        }
        return object;
    }

    bool holdsNul(const Object& text, std::size_t unit) const {
        for (std::size_t i = 0; i < text.bytes; i += unit) {
            if (*number(text.content + i, unit, table_) == 0) {
                return true;
            }
        }
        return false;
    }

    std::optional<Extent> extentOf(std::uint64_t index, unsigned deepest) {
        if (index >= seen_.size()) {
            return std::nullopt;
        }
        Seen& seen = seen_[static_cast<std::size_t>(index)];
        if (seen.state == State::unseen) {
            seen.state = State::underWay;
            const auto at = number(table_ + index * offsetWidth_, offsetWidth_, bytes_.size());
            const auto object = at ? objectAt(*at) : std::nullopt;
            const auto extent = object ? sum(*object, deepest) : std::nullopt;
            if (!extent) {
                return std::nullopt;
            }
            seen = {State::measured, *extent};
        }
        // What is still under way refers to itself.
        return seen.state == State::measured && seen.extent.height <= deepest
                   ? std::optional(seen.extent)
                   : std::nullopt;
    }

    std::optional<Extent> sum(const Object& object, unsigned deepest) {
        Extent all{0, kNodeCost + object.bytes};
        if (object.references > 0 && deepest == 0) {
            return std::nullopt;
        }
        for (std::uint64_t i = 0; i < object.references; ++i) {
            const auto index =
                number(object.content + i * referenceWidth_, referenceWidth_, table_);
            const auto extent = index ? extentOf(*index, deepest - 1) : std::nullopt;
            if (!extent) {
                return std::nullopt;
            }
            all.height = std::max(all.height, extent->height + 1);
            all.cost += extent->cost;
            if (all.cost > kHighestCost) {
                return std::nullopt;
            }
        }
        return all;
    }

    std::string_view bytes_;
    std::size_t table_ = 0; // where the offsets of the objects begin
    std::uint64_t offsetWidth_ = 0;
    std::uint64_t referenceWidth_ = 0;
    std::uint64_t root_ = 0;
    std::vector<Seen> seen_;
};

} // namespace

bool isBoundedBinaryList(std::string_view bytes) {
    return Walk(bytes).isBounded();
}

} // namespace nocturo
