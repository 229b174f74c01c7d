#include "bus/launcher_face.h"

#include "app/app_controller.h"
#include "base/activation_token.h"
#include "base/bus_dictionary.h"
#include "base/event_loop.h"
#include "base/texts/texts_in_language.h"
#include "base/texts/translated.h"
#include "base/texts/users_language.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace nocturo {

namespace {

constexpr const char* kApplicationInterface = "org.freedesktop.Application";

// Of platform data.
constexpr const char* kActivationToken = "activation-token";
constexpr const char* kLanguage = "nocturo-language"; // as usersLanguage() has it

// The one that runs may be asking its user something before it comes to open anything, and each
// document may be as slow as one can be.
constexpr int kOpenTimeoutMs = 5000;
constexpr int kTimeoutOfEachMs = 100;

constexpr std::string_view kFileScheme = "file://";

/// The path of a file's address; what is no such address as it stands.
std::string pathOf(const std::string& uri) {
    const auto start = uri.find('/', kFileScheme.size()); // after the host
    if (!uri.starts_with(kFileScheme) || start == std::string::npos) {
        return uri;
    }
    std::string path;
    for (const char* read = uri.data() + start; *read != '\0'; ++read) {
        if (*read != '%') {
            path += *read;
            continue;
        }
        unsigned char byte = 0;
        const char* digits = read + 1;
        const char* end = std::min(digits + 2, uri.data() + uri.size());
        if (std::from_chars(digits, end, byte, 16).ptr != digits + 2 || byte == 0) {
            return uri;
        }
        path += static_cast<char>(byte);
        read = digits + 1;
    }
    return path;
}

/// What `tell` says in a language that the caller has told, or else in that of this process. To ask
/// would wait, and who waits for an answer takes whatever others send into the memory.
template <typename Tell>
std::string inLanguage(const std::optional<std::string>& language, const Tell& tell) {
    std::optional<TextsInLanguage> theirs;
    if (language) {
        theirs.emplace(*language);
    }
    return tell();
}

/// The address of the file at an absolute path.
std::string uriOf(const std::string& path) {
    constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                                        "0123456789-._~/";
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string uri(kFileScheme);
    for (const char character : path) {
        if (kPlain.find(character) != std::string_view::npos) {
            uri += character;
        } else {
            const auto byte = static_cast<unsigned char>(character);
            uri += {'%', kDigits[byte / 16U], kDigits[byte % 16U]};
        }
    }
    return uri;
}

} // namespace

static bool readArgument(sd_bus_message* call, PlatformData& data) {
    return forEachEntry(call, [&](std::string_view key) {
        std::string text = readTextVariant(call);
        if (key == kActivationToken) {
            data.activationToken = std::move(text);
        } else if (key == kLanguage) {
            data.language = std::move(text);
        }
    });
}

static bool readArgument(sd_bus_message* call, IgnoredParameters& /*parameters*/) {
    return sd_bus_message_skip(call, "av") >= 0;
}

struct LauncherFace::Table {
    // Everybody on the session bus is its user.
    static constexpr auto kFree = SD_BUS_VTABLE_UNPRIVILEGED;

    static const std::array<sd_bus_vtable, 5> members;
};

const std::array<sd_bus_vtable, 5> LauncherFace::Table::members = {{
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD_WITH_ARGS("Activate", SD_BUS_ARGS("a{sv}", platformData), SD_BUS_NO_RESULT,
                            kServe<&LauncherFace::activate>, kFree),
    SD_BUS_METHOD_WITH_ARGS("Open", SD_BUS_ARGS("as", uris, "a{sv}", platformData),
                            SD_BUS_NO_RESULT, open, kFree),
    SD_BUS_METHOD_WITH_ARGS("ActivateAction",
                            SD_BUS_ARGS("s", name, "av", parameter, "a{sv}", platformData),
                            SD_BUS_NO_RESULT, kServe<&LauncherFace::activateAction>, kFree),
    SD_BUS_VTABLE_END,
}};

LauncherFace::LauncherFace(NDAppController& controller, const Bus* bus, EventLoop& loop)
    : controller_(controller), bus_(bus), loop_(loop), documents_(controller, loop) {
    if (bus_ != nullptr) {
        object_ = bus_->addObject(kObjectPath, kApplicationInterface, Table::members.data(), this);
    }
}

void LauncherFace::launchDidFinish() {
    if (bus_ == nullptr) {
        return;
    }
    // The bus keeps the order: what it sent before its answer to this is here before the answer.
    const char* service = "org.freedesktop.DBus";
    endOfLaunch_ = bus_->call(bus_->newCall(service, "/org/freedesktop/DBus", service, "GetId"),
                              [this](sd_bus_message* /*answer*/) { launched_ = true; });
}

BusAnswer LauncherFace::whetherReady() const {
    return nocturo::whetherReady(controller_);
}

BusAnswer LauncherFace::activate(const PlatformData& platform) {
    keepActivationToken(platform.activationToken);
    if (launched_) {
        controller_.applicationShouldHandleReopen(false);
    }
    return {};
}

// Answered when all are open.
int LauncherFace::open(sd_bus_message* call, void* self, sd_bus_error* error) {
    auto& face = *static_cast<LauncherFace*>(self);
    std::tuple<std::vector<std::string>, PlatformData> arguments;
    if (!readArguments(call, arguments)) {
        return sd_bus_error_set(error, SD_BUS_ERROR_INVALID_ARGS, nullptr);
    }
    auto& [paths, platform] = arguments;
    if (!face.whetherReady()) {
        const auto sentence =
            inLanguage(platform.language, [&face] { return face.whetherReady().error().sentence; });
        return sd_bus_error_set(error, kFailedError, sentence.c_str());
    }
    keepActivationToken(platform.activationToken);
    std::ranges::transform(paths, paths.begin(), pathOf);
    const std::shared_ptr<sd_bus_message> asked(sd_bus_message_ref(call), BusRelease());
    const bool isTaken = face.documents_.open(
        std::move(paths),
        [asked, language = platform.language](const std::vector<std::string>& refused) {
            if (refused.empty()) {
                sd_bus_reply_method_return(asked.get(), nullptr);
            } else {
                const auto refusal =
                    inLanguage(language, [&refused] { return refusalOf(refused); });
                sd_bus_reply_method_errorf(asked.get(), kFailedError, "%s", refusal.c_str());
            }
        });
    return isTaken ? 1
                   : sd_bus_error_set(error, SD_BUS_ERROR_LIMITS_EXCEEDED, "Wait for the answers.");
}

BusAnswer LauncherFace::activateAction(const std::string& name,
                                       const IgnoredParameters& /*parameters*/,
                                       const PlatformData& platform) {
    keepActivationToken(platform.activationToken);
    if (name == "toggle" && launched_) {
        controller_.toggleGlobalEffect();
    } else if (name == "preferences" && controller_.isReady()) {
        controller_.openPreferences();
    } else if (name == "about") {
        controller_.openAboutBox();
    } else if (name == "quit") {
        loop_.callSoon([this] { loop_.quit(); }); // so that the caller has its answer first
    }
    return {};
}

BusAnswer whetherReady(const NDAppController& controller) {
    if (!controller.isReady()) {
        return failure(translated("Nocturo waits for the answer to the question that it shows."));
    }
    return {};
}

std::optional<std::string> openInRunningApplication(const Bus& bus,
                                                    const std::vector<std::string>& paths) {
    if (paths.size() > kLongestList) {
        return translated("No more than %d documents can be opened at once.",
                          {std::to_string(kLongestList)});
    }
    std::vector<std::string> uris;
    uris.reserve(paths.size());
    for (const std::string& path : paths) {
        uris.push_back(uriOf(path));
    }
    const BusMessage call = bus.newCall(kBusName, kObjectPath, kApplicationInterface, "Open");
    appendValue(call.get(), uris);
    appendDictionary(call.get(),
                     {{kActivationToken, givenActivationToken()}, {kLanguage, usersLanguage()}});
    sd_bus_error error{};
    const int patienceMs = kOpenTimeoutMs + kTimeoutOfEachMs * static_cast<int>(paths.size());
    const BusMessage answer = bus.callAndWait(call, patienceMs, &error);
    std::optional<std::string> refusal;
    if (answer != nullptr) {
        refusal.emplace();
    } else if (sd_bus_error_has_name(&error, kFailedError) != 0) {
        refusal = error.message;
    }
    sd_bus_error_free(&error);
    return refusal;
}

} // namespace nocturo
