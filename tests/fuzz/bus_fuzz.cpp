#include "app/app_controller.h"
#include "app/app_menus.h"
#include "app/disturbance_watch.h"
#include "app/keep_colors.h"
#include "app/look_picker.h"
#include "app/user_interface.h"
#include "automation/automation.h"
#include "automation/game_mode.h"
#include "base/event_loop.h"
#include "base/file_descriptor.h"
#include "bus/bus_face.h"
#include "bus/launcher_menu.h"
#include "bus/status_notifier_item.h"
#include "bus_message.h"
#include "displays/calibration/profile_calibrations.h"
#include "displays/display_functions.h"
#include "displays/ramp_display_services.h"
#include "displays/simulated/simulated_hardware.h"
#include "documents/chosen_look.h"
#include "documents/looks.h"
#include "documents/recent_documents.h"
#include "harness.h"
#include "session/color_scheme.h"
#include "session/desktop_sources.h"
#include "session/disturber_finder.h"
#include "settings/defaults_store.h"

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <optional>
#include <regex>
#include <string_view>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace nocturo;

namespace {

constexpr const char* kAnybody = ":1.9"; // the name of everybody: calls without one go nowhere
FuzzedDataProvider* given = nullptr;     // what the other side says now is made of

/// What stands for the bus and everybody on it: answers every call, mostly with nonsense.
class Others {
  public:
    Others() : listener_(socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)) {
        const std::string name = "nocturo-fuzz-" + std::to_string(getpid());
        address = "unix:abstract=" + name;
        sockaddr_un place{};
        place.sun_family = AF_UNIX;
        std::memcpy(place.sun_path + 1, name.data(), name.size());
        const auto size = offsetof(sockaddr_un, sun_path) + 1 + name.size();
        fuzz::need(bind(listener_.get(), reinterpret_cast<const sockaddr*>(&place),
                        static_cast<socklen_t>(size)) == 0);
        listen(listener_.get(), 8);
    }

    /// Whether anything was done.
    bool serve() {
        const int accepted = accept4(listener_.get(), nullptr, nullptr, SOCK_NONBLOCK);
        if (accepted >= 0) {
            sd_bus* bus = nullptr;
            sd_bus_new(&bus);
            sd_bus_set_fd(bus, accepted, accepted);
            sd_bus_set_server(bus, 1, sd_id128_t{});
            sd_bus_add_filter(bus, nullptr, answer, nullptr);
            sd_bus_start(bus);
            connections.emplace_back(bus);
        }
        bool did = accepted >= 0;
        std::erase_if(connections, [&](const BusHandle& bus) {
            const int result = sd_bus_process(bus.get(), nullptr);
            did = did || result > 0;
            return result < 0;
        });
        return did;
    }

    std::string address;
    std::vector<BusHandle> connections;

  private:
    static int answer(sd_bus_message* call, void* /*self*/, sd_bus_error* /*error*/) {
        sd_bus_message* reply = nullptr;
        if (sd_bus_message_is_method_call(call, nullptr, nullptr) == 0 ||
            sd_bus_message_new_method_return(call, &reply) < 0) {
            return 0;
        }
        const BusMessage owned(reply);
        sd_bus_message_set_sender(reply, kAnybody);
        const std::string_view member(sd_bus_message_get_member(call));
        if (member == "Hello" || member == "GetNameOwner") {
            sd_bus_message_append(reply, "s", kAnybody);
        } else if (member != "AddMatch" && given != nullptr) {
            fuzz::append(reply, fuzz::anySignature(*given), *given);
        }
        sd_bus_send(nullptr, reply, nullptr);
        return 1;
    }

    FileDescriptor listener_;
};

class NoWindows : public UserInterface {
  public:
    std::string whyNoWindows() override { return {}; }
    void showPreferences() override {}
    void showAboutBox() override {}
    void setAboutBoxBackgroundColor(const OpaqueColor& /*color*/) override {}
    bool preferencesVisible() const override { return false; }
    bool openEffectFile(const std::string& path) override { return path.size() % 2 == 0; }
    bool applyEffectFile(const std::string& path) override { return path.size() % 2 == 0; }
    Result<void> saveEffectFile(const std::string& path) override {
        return path.size() % 2 == 0 ? Result<void>() : failedWith(ENOSPC);
    }
    std::vector<std::uint8_t> previewPicture(CGDirectDisplayID /*display*/) override {
        return {1, 2, 3};
    }
};

/// Nocturo, as far as it hears of others over a bus.
struct World {
    explicit World(const std::string& address)
        : bus(Bus::connect(address, loop)), finder(bus.get()),
          face(controller, store, local, disturbances, windows, keepColors, chosenLook, automation,
               bus.get(), loop) {
        auto hardware = std::make_unique<SimulatedHardware>(
            2, "/tmp", [](const Ramp&, const std::filesystem::path&) { return true; });
        services = std::make_unique<RampDisplayServices>(
            std::move(hardware), std::make_unique<ProfileCalibrations>(nullptr, bus.get()), &loop);
        setDisplayServices(services.get());
        controller.setUserInterface(&windows);
        controller.setAutomation(&automation);
        controller.applicationDidFinishLaunching();
        face.announceChanges();
        face.launchDidFinish();
        menus.makeScreenMenus();
        launcher.emplace(menus.dockMenu(), *bus, loop);
        item.emplace(menus.statusMenu(), loop, address,
                     StatusNotifierItem::Handlers{[](int, int) {}, [] {}, [](int) {}, [] {}});
        gameMode.emplace(*bus, [] {});
        colorScheme.emplace(*bus, [](bool /*dark*/) {});
        sources.emplace(centers, loop,
                        DesktopSources::Surroundings{nullptr, "1", bus.get(), bus.get()});
    }
    ~World() { setDisplayServices(nullptr); }

    EventLoop loop;
    std::unique_ptr<Bus> bus;
    NotificationCenter& local = NotificationCenter::defaultCenter();
    NotificationCenter workspace;
    NotificationCenter distributed;
    NotificationCenters centers{local, workspace, distributed};
    DefaultsStore& store = *DefaultsStore::standardUserDefaults();
    std::unique_ptr<RampDisplayServices> services;
    NDAppController controller{store, centers, loop};
    NoWindows windows;
    KeepColors keepColors{controller, store, local, loop};
    DisturberFinder finder;
    DisturbanceWatch disturbances{controller, local,
                                  [this](auto answer) { finder.find(std::move(answer)); }};
    Looks looks{"/nowhere", fuzz::ownDirectory() / "looks", local};
    ChosenLook chosenLook{looks};
    SystemWallClock clock{loop};
    Automation automation{store, local, clock, loop, looks, fuzz::ownDirectory()};
    BusFace face;
    LookPicker lookPicker{controller, chosenLook};
    const RecentDocuments documents{fuzz::ownDirectory() / "recent.plist"};
    AppMenus menus{controller, store, local, lookPicker, documents, {}};
    std::optional<LauncherMenu> launcher;
    std::optional<StatusNotifierItem> item;
    std::optional<GameMode> gameMode;
    std::optional<ColorScheme> colorScheme;
    std::optional<DesktopSources> sources;
};

struct Member {
    std::string path;
    std::string interface;
    std::string name;
    std::string types;
};

std::vector<Member> methods; // of all objects of Nocturo, as they tell of themselves

int learn(sd_bus_message* description, void* path, sd_bus_error* /*error*/) {
    const char* xml = "";
    sd_bus_message_read(description, "s", &xml);
    static const std::regex part(
        R"re(<(interface|method|signal) name="([^"]*)|<arg type="([^"]*)"[^>]*direction="in")re");
    std::string interface;
    const std::string_view text(xml);
    for (std::cregex_iterator each(text.begin(), text.end(), part), end; each != end; ++each) {
        const std::string kind = each->str(1);
        if (kind == "interface") {
            interface = each->str(2);
        } else if (kind == "method") {
            methods.push_back({static_cast<const char*>(path), interface, each->str(2), ""});
        } else if (kind.empty()) {
            methods.back().types += each->str(3);
        }
    }
    return 0;
}

void askForMethods(sd_bus* bus) {
    for (const char* path : {"/org/nocturo/Nocturo", "/org/nocturo/Nocturo/LauncherMenu",
                             "/MenuBar", "/StatusNotifierItem"}) {
        sd_bus_message* call = nullptr;
        sd_bus_message_new_method_call(bus, &call, kAnybody, path,
                                       "org.freedesktop.DBus.Introspectable", "Introspect");
        const BusMessage owned(call);
        sd_bus_message_set_sender(call, kAnybody);
        sd_bus_call_async(bus, nullptr, call, learn, const_cast<char*>(path), 0);
    }
}

constexpr const char* kBus = "org.freedesktop.DBus";
constexpr const char* kColord = "org.freedesktop.ColorManager";
constexpr const char* kLogin = "org.freedesktop.login1.Manager";
constexpr const char* kWatcher = "org.kde.StatusNotifierWatcher";
const std::vector<Member> kSignals = {
    {"/org/freedesktop/DBus", kBus, "NameOwnerChanged", "sss"},
    {"/org/freedesktop/login1", kLogin, "PrepareForSleep", "b"},
    {"/", "org.freedesktop.DBus.Properties", "PropertiesChanged", "sa{sv}as"},
    {"/com/feralinteractive/GameMode", "org.freedesktop.DBus.Properties", "PropertiesChanged",
     "sa{sv}as"},
    {"/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged", "ssv"},
    {"/org/freedesktop/ScreenSaver", "org.freedesktop.ScreenSaver", "ActiveChanged", "b"},
    {"/org/gnome/ScreenSaver", "org.gnome.ScreenSaver", "ActiveChanged", "b"},
    {"/org/freedesktop/ColorManager", kColord, "DeviceAdded", "o"},
    {"/org/freedesktop/ColorManager", kColord, "Changed", ""},
    {"/StatusNotifierWatcher", kWatcher, "StatusNotifierHostRegistered", ""}};

void say(sd_bus* bus, FuzzedDataProvider& data) {
    sd_bus_message* message = nullptr;
    const bool isCall = data.ConsumeProbability<float>() > 0.3F;
    const auto& members = isCall ? methods : kSignals;
    const Member& member = members[data.ConsumeIntegralInRange<std::size_t>(0, members.size() - 1)];
    if (isCall) {
        sd_bus_message_new_method_call(bus, &message, kAnybody, member.path.c_str(),
                                       member.interface.c_str(), member.name.c_str());
    } else {
        sd_bus_message_new_signal(bus, &message, member.path.c_str(), member.interface.c_str(),
                                  member.name.c_str());
    }
    const BusMessage owned(message);
    sd_bus_message_set_sender(message, member.interface == kBus ? kBus : kAnybody);
    const bool isOdd = data.ConsumeProbability<float>() > 0.9F;
    fuzz::append(message, isOdd ? fuzz::anySignature(data) : member.types, data);
    sd_bus_send(bus, message, nullptr);
}

void settle(World& world, Others& others) {
    for (bool didAnything = true; didAnything && !world.loop.isQuitting();) {
        didAnything = others.serve();
        if (world.loop.prepare()) {
            world.loop.dispatchPending();
            didAnything = true;
        }
    }
}

} // namespace

/// Stands for sd-bus's own: who would answer a question that waits waits for it as well, in this
/// one thread, and each would take its whole patience.
extern "C" int sd_bus_call(sd_bus* /*bus*/, sd_bus_message* call, std::uint64_t /*patience*/,
                           sd_bus_error* /*error*/, sd_bus_message** answer) {
    sd_bus_message_seal(call, 1, 0);
    if (given == nullptr || sd_bus_message_new_method_return(call, answer) < 0) {
        return -ETIMEDOUT;
    }
    fuzz::append(*answer, fuzz::anySignature(*given), *given);
    return sd_bus_message_seal(*answer, 1, 0);
}

/// Whatever anybody says over a bus, as a call, a signal or an answer, harms nobody.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static Others& others = *new Others; // kept: what they hear of is gone at the exit
    static std::unique_ptr<World>& world = *new std::unique_ptr<World>;
    static unsigned inputs = 0;
    FuzzedDataProvider data(bytes, size);
    given = &data;
    if (world == nullptr || world->loop.isQuitting() || ++inputs % 512 == 0) {
        world.reset();
        world = std::make_unique<World>(others.address);
        settle(*world, others);
        methods.clear();
        for (const BusHandle& bus : others.connections) {
            askForMethods(bus.get());
        }
        settle(*world, others);
        fuzz::need(methods.size() > 40);
    }
    for (int i = 0; i < 4 && data.remaining_bytes() > 0 && !others.connections.empty(); ++i) {
        say(data.PickValueInArray(
                {others.connections.front().get(), others.connections.back().get()}),
            data);
        settle(*world, others);
    }
    given = nullptr;
    return 0;
}
