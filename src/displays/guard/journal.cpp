#include "displays/guard/journal.h"

#include <cstring>
#include <type_traits>
#include <utility>

namespace nocturo {

namespace {

constexpr std::string_view kMagic = "Nocturo\2"; // the last byte is the version of the layout

// FNV-1a: each byte's step can be undone, so a single wrong byte never goes unseen.
std::uint64_t checksum(std::string_view bytes) {
    std::uint64_t sum = 0xcbf29ce484222325U;
    for (const char byte : bytes) {
        sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
    }
    return sum;
}

template <class Number>
void append(std::string& bytes, Number number) {
    static_assert(std::is_trivially_copyable_v<Number>);
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

void append(std::string& bytes, const std::vector<std::uint16_t>& channel) {
    bytes.append(reinterpret_cast<const char*>(channel.data()), channel.size() * sizeof channel[0]);
}

// Takes values off the front of bytes; once there are too few, all that follows fails.
class Reader {
  public:
    explicit Reader(std::string_view bytes) : rest_(bytes) {}

    template <class Number>
    Number number() {
        Number value{};
        take(&value, sizeof value);
        return value;
    }

    void take(void* target, std::size_t size) {
        failed_ = failed_ || rest_.size() < size;
        if (!failed_) {
            std::memcpy(target, rest_.data(), size);
            rest_.remove_prefix(size);
        }
    }

    bool holds(std::size_t size) const { return !failed_ && rest_.size() >= size; }
    bool isAtEnd() const { return !failed_ && rest_.empty(); }

  private:
    std::string_view rest_;
    bool failed_ = false;
};

} // namespace

std::string journalBytes(const Journal& journal) {
    std::string body;
    append(body, journal.token);
    append(body, static_cast<std::uint32_t>(journal.entries.size()));
    for (const auto& [crtc, ramp] : journal.entries) {
        append(body, crtc);
        append(body, ramp.size());
        append(body, ramp.red);
        append(body, ramp.green);
        append(body, ramp.blue);
    }
    std::string bytes(kMagic);
    append(bytes, checksum(body));
    return bytes + body;
}

std::optional<Journal> journalFromBytes(std::string_view bytes) {
    if (!bytes.starts_with(kMagic)) {
        return std::nullopt;
    }
    bytes.remove_prefix(kMagic.size());
    Reader reader(bytes);
    const auto sum = reader.number<std::uint64_t>();
    if (bytes.size() < sizeof sum || sum != checksum(bytes.substr(sizeof sum))) {
        return std::nullopt;
    }
    Journal journal;
    journal.token = reader.number<std::uint64_t>();
    for (auto left = reader.number<std::uint32_t>(); left > 0; --left) {
        const auto crtc = reader.number<std::uint32_t>();
        const auto size = reader.number<std::uint32_t>();
        const std::size_t channelBytes = std::size_t{size} * sizeof(std::uint16_t);
        if (!isUsableRampSize(size) || !reader.holds(3 * channelBytes)) {
            return std::nullopt;
        }
        Ramp ramp(size);
        for (auto* channel : {&ramp.red, &ramp.green, &ramp.blue}) {
            reader.take(channel->data(), channelBytes);
        }
        journal.entries.push_back({crtc, std::move(ramp)});
    }
    return reader.isAtEnd() ? std::optional(std::move(journal)) : std::nullopt;
}

} // namespace nocturo
