#include "displays/guard/journal.h"

#include "base/file_descriptor.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <type_traits>

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

int writeJournal(const std::filesystem::path& file, const Journal& journal) {
    std::string temporary = file.native() + ".new";
    const FileDescriptor descriptor(open(temporary.c_str(),
                                         O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW,
                                         S_IRUSR | S_IWUSR));
    const bool done = descriptor.get() >= 0 &&
                      writeAll(descriptor.get(), journalBytes(journal)) == 0 &&
                      std::rename(temporary.c_str(), file.c_str()) == 0;
    return done ? 0 : errno;
}

JournalReading readJournal(const std::filesystem::path& file) {
    JournalReading reading;
    const FileDescriptor descriptor(
        open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    reading.exists = descriptor.get() >= 0 || errno != ENOENT;
    struct stat status {};
    if (descriptor.get() < 0 || fstat(descriptor.get(), &status) != 0 || !S_ISREG(status.st_mode) ||
        status.st_uid != geteuid() || status.st_size < 0 ||
        static_cast<std::size_t>(status.st_size) > kLongestJournal) {
        return reading;
    }
    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t count = read(descriptor.get(), bytes.data() + filled, bytes.size() - filled);
        if (count == 0 || (count < 0 && errno != EINTR)) {
            break;
        }
        filled += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    reading.journal = journalFromBytes(std::string_view(bytes).substr(0, filled));
    return reading;
}

} // namespace nocturo
