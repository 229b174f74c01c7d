#include "displays/guard/journal.h"

#include "base/files.h"

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <type_traits>
#include <unistd.h>
#include <utility>

namespace nocturo {

namespace {

constexpr std::string_view kMagic = "Nocturo\1"; // the last byte is the version of the layout
// More than the ramps of any machine; a file beyond is not worth reading.
constexpr std::size_t kLongestJournal = 64U << 20U;

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
    append(body, journal.process);
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
    journal.process = reader.number<pid_t>();
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

std::filesystem::path journalFile(const std::filesystem::path& runtimeDirectory,
                                  std::string_view displayName) {
    // "host:0.1" is screen 1 of the server "host:0".
    const auto colon = displayName.rfind(':');
    const auto screen = colon == std::string_view::npos ? colon : displayName.find('.', colon);
    std::string server(displayName.substr(0, screen));
    std::replace(server.begin(), server.end(), '/', '_');
    return runtimeDirectory / ("ramps" + server);
}

Result<void> writeJournal(const std::filesystem::path& file, const Journal& journal) {
    const auto written = replaceFile(file, journalBytes(journal), S_IRUSR | S_IWUSR,
                                     Durability::lastsWhileTheSystemRuns);
    return written.map([](const auto&) {});
}

Result<Journal> readJournal(const std::filesystem::path& file) {
    const auto opened = openRegularFile(file, O_NOFOLLOW);
    if (!opened) {
        return tl::unexpected(opened.error());
    }
    if (opened->status.st_uid != geteuid()) {
        return failed("it is another user's");
    }
    const auto bytes = readAll(opened->descriptor, kLongestJournal);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    auto journal = journalFromBytes(*bytes);
    return journal ? Result<Journal>(std::move(*journal)) : failed("it is damaged");
}

} // namespace nocturo
