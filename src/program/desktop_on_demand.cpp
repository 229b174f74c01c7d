#include "program/desktop_on_demand.h"

#include "app/app_controller.h"
#include "base/environment.h"
#include "base/event_loop.h"
#include "base/log.h"
#include "base/program_files.h"
#include "base/program_watch.h"
#include "base/texts/translated.h"
#include "documents/current_effects.h"
#include "documents/effect_document_file.h"
#include "effects/effect_choices.h"
#include "program/surroundings.h"

#include <chrono>
#include <dlfcn.h>
#include <string_view>
#include <system_error>
#include <utility>

namespace nocturo {

namespace {

constexpr double kDimOfOneNotch = 0.05;
constexpr const char* kTrayWatcher = "org.kde.StatusNotifierWatcher";
constexpr const char* kLibrary = "libnocturo-desktop.so";

// Many panels embed windows and show items of the bus; which they are ready for first is chance.
constexpr std::chrono::milliseconds kPanelsHaste(500);

/// The library stays loaded until the process ends: Qt cannot be unloaded.
Result<const DesktopLibrary*> loadLibrary() {
    const std::filesystem::path file = programFile(kLibrary, NOCTURO_LIBRARIES_FROM_BIN);
    if (!std::filesystem::exists(file)) {
        return failed(translated("Windows come with the package nocturo-desktop, which is not "
                                 "installed."));
    }
    void* handle = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* entry = handle != nullptr ? dlsym(handle, kDesktopLibraryEntry) : nullptr;
    if (entry == nullptr) {
        return failed(translated("Windows cannot be shown: %@.", {dlerror()}));
    }
    const auto* library = reinterpret_cast<decltype(&nocturoDesktopLibrary)>(entry)();
    if (std::string_view(library->version) != NOCTURO_VERSION) {
        return failed(translated("Windows cannot be shown before Nocturo is started again, because "
                                 "another version was installed meanwhile."));
    }
    return library;
}

std::filesystem::path guide() {
    const auto file = programFile("docs/user-guide.md", NOCTURO_DATA_FROM_BIN);
    std::error_code error;
    return std::filesystem::exists(file, error) ? file : std::filesystem::path();
}

} // namespace

bool drawTestCard(const Ramp& ramp, const std::filesystem::path& picture) {
    static const auto library = [] {
        auto loaded = loadLibrary();
        if (!loaded) {
            logWarning(kLogDisplays, loaded.error().text);
        }
        return loaded;
    }();
    return library && (*library)->writeTestCard(ramp, picture);
}

DesktopOnDemand::DesktopOnDemand(EventLoop& loop, const Bus* bus, NDAppController& controller,
                                 DefaultsStore& defaults, const NotificationCenters& centers,
                                 LookPicker& looks)
    : loop_(loop), bus_(bus), controller_(controller), defaults_(defaults), centers_(centers),
      looks_(looks), recentDocuments_(stateDirectory() / "recent-documents.plist"),
      autostart_(userDirectory("XDG_CONFIG_HOME", ".config") / "autostart", configDirectories(),
                 ownProgram()),
      menus_(controller, defaults, centers.local, looks, recentDocuments_,
             {[this](const std::string& path) { openDocument(path); }, [&loop] { loop.quit(); }}),
      tray_(menus_.statusMenu(), loop, sessionBusAddress(),
            {[this](bool shown) { setItemEmbedded(shown); },
             [this](int x, int y) { popUpStatusMenu(x, y); }},
            {[&controller] { controller.activateEffect(); },
             [&controller](int steps) {
                 if (controller.effectActive()) {
                     stepDim(kDimOfOneNotch * steps);
                 }
             }}) {
    controller_.setUserInterface(this);
    controller_.setDesktopFace(this);
}

DesktopOnDemand::~DesktopOnDemand() {
    controller_.setDesktopFace(nullptr);
    controller_.setUserInterface(nullptr);
}

Result<DesktopPart*> DesktopOnDemand::load() {
    if (part_ != nullptr) {
        return part_.get();
    }
    const auto library = loadLibrary();
    if (!library) {
        return tl::unexpected(library.error());
    }
    choosePlatform(server_);
    awaitedTray_.reset(); // the part has one of its own
    part_ = (*library)->start({loop_, controller_, defaults_, centers_, looks_, recentDocuments_,
                               stateDirectory(), guide(), autostart_, menus_, server_,
                               [this] {
                                   if (sessionIsEnding) {
                                       sessionIsEnding();
                                   }
                               },
                               serverIsLost});
    part_->setKeyboardLayout(layout_);
    part_->setInTray(inTray_);
    part_->setItemImage(itemActive_);
    part_->setItemToolTip(itemToolTip_);
    part_->setItemEmbedded(itemEmbedded_);
    if (bus_ != nullptr) {
        colorScheme_.emplace(*bus_, [this](bool dark) { part_->preferDark(dark); });
    }
    if (aboutBoxColor_) {
        part_->windows().setAboutBoxBackgroundColor(*aboutBoxColor_);
    }
    return part_.get();
}

DesktopPart* DesktopOnDemand::partOrWarning() {
    const auto part = load();
    if (!part && !std::exchange(problemTold_, true)) {
        logWarning(kLogApp, part.error().text);
    }
    return part.value_or(nullptr);
}

void DesktopOnDemand::setXServer(XConnection* server) {
    server_ = server;
    if (server == nullptr) {
        awaitedTray_.reset();
        if (part_ != nullptr) {
            part_->setItemEmbedded(false);
        }
    }
}

void DesktopOnDemand::setKeyboardLayout(KeyboardLayout* layout) {
    layout_ = layout;
    if (part_ != nullptr) {
        part_->setKeyboardLayout(layout);
    }
}

std::string DesktopOnDemand::whyNoWindows() {
    const auto part = load();
    return part ? std::string() : part.error().text;
}

bool DesktopOnDemand::canBeSeen() {
    return canShowWindows(server_);
}

void DesktopOnDemand::showPreferences() {
    if (auto* part = partOrWarning()) {
        part->windows().showPreferences();
    }
}

void DesktopOnDemand::showAboutBox() {
    if (auto* part = partOrWarning()) {
        part->windows().showAboutBox();
    }
}

void DesktopOnDemand::setAboutBoxBackgroundColor(const OpaqueColor& color) {
    aboutBoxColor_ = color;
    if (part_ != nullptr) {
        part_->windows().setAboutBoxBackgroundColor(color);
    }
}

bool DesktopOnDemand::preferencesVisible() const {
    return part_ != nullptr && part_->windows().preferencesVisible();
}

bool DesktopOnDemand::openEffectFile(const std::string& path) {
    return applyEffectFile(path); // what takes documents is loaded before
}

bool DesktopOnDemand::applyEffectFile(const std::string& path) {
    if (part_ != nullptr) {
        return part_->windows().applyEffectFile(path);
    }
    const auto document = readEffectDocument(path);
    if (document) {
        setCurrentEffects(*document);
        recentDocuments_.note(path);
    }
    return document.has_value();
}

Result<void> DesktopOnDemand::saveEffectFile(const std::string& path) {
    return part_ != nullptr ? part_->windows().saveEffectFile(path)
                            : writeEffectDocument(path, currentEffects());
}

std::vector<std::uint8_t> DesktopOnDemand::previewPicture(CGDirectDisplayID display) {
    auto* part = partOrWarning();
    return part != nullptr ? part->windows().previewPicture(display) : std::vector<std::uint8_t>();
}

void DesktopOnDemand::showAlert(const Alert& alert,
                                std::function<void(AlertAnswer answer)> answered) {
    auto* part = canShowWindows(server_) ? partOrWarning() : nullptr;
    if (part != nullptr) {
        part->showAlert(alert, std::move(answered));
        if (alert.overPreferences) {
            offerTrayWhereThereIsOne();
        }
        return;
    }
    logWarning(kLogApp, titleOf(alert));
    answered(AlertAnswer::unseen);
}

void DesktopOnDemand::askToKeepColors(int secondsLeft, std::function<void(bool keep)> answered) {
    if (!canShowWindows(server_)) {
        return;
    }
    // Silent where there is none, as this comes every second.
    if (const auto part = load()) {
        (*part)->askToKeepColors(secondsLeft, std::move(answered));
    }
}

void DesktopOnDemand::withdrawKeepColors() {
    if (part_ != nullptr) {
        part_->withdrawKeepColors();
    }
}

void DesktopOnDemand::whenPointerIsReleased(std::function<void()> action) {
    if (part_ != nullptr) {
        part_->whenPointerIsReleased(std::move(action));
    } else {
        action();
    }
}

void DesktopOnDemand::showRefusedDocuments(const std::vector<std::string>& paths) {
    auto* part = canShowWindows(server_) ? partOrWarning() : nullptr;
    if (part != nullptr) {
        part->showRefusedDocuments(paths);
    }
}

void DesktopOnDemand::setActivateItemTitles(bool active) {
    menus_.setActivateItemTitles(active);
}

void DesktopOnDemand::setStatusItemShown(bool shown) {
    inTray_ = shown;
    if (part_ != nullptr) {
        part_->setInTray(shown);
    }
    tray_.setShown(shown);
    if (shown) {
        stateTeller_.emplace(controller_, defaults_, centers_.local, loop_,
                             [this](const std::string& sentence) { setItemToolTip(sentence); });
    } else {
        stateTeller_.reset();
    }
}

void DesktopOnDemand::setItemToolTip(const std::string& sentence) {
    itemToolTip_ = sentence;
    tray_.setToolTip(sentence);
    if (part_ != nullptr) {
        part_->setItemToolTip(sentence);
    }
}

void DesktopOnDemand::openDocument(const std::string& path) {
    if (!applyEffectFile(path)) {
        showRefusedDocuments({path});
    }
}

void DesktopOnDemand::setStatusItemImage(bool active) {
    itemActive_ = active;
    tray_.setActive(active);
    if (part_ != nullptr) {
        part_->setItemImage(active);
    }
}

void DesktopOnDemand::setItemEmbedded(bool embedded) {
    itemEmbedded_ = embedded;
    awaitedTray_.reset();
    trayLook_.reset();
    if (part_ != nullptr) {
        part_->setItemEmbedded(embedded);
    } else if (embedded && server_ != nullptr) {
        const auto lookSoon = [this] {
            trayLook_ = loop_.scheduleTimer(kPanelsHaste, [this] { showItemWhereTrayIs(); });
        };
        awaitedTray_ = std::make_unique<TrayWindow>(*server_, lookSoon);
        lookSoon();
    }
}

void DesktopOnDemand::showItemWhereTrayIs() {
    if (part_ == nullptr && awaitedTray_ != nullptr && awaitedTray_->isThere()) {
        partOrWarning();
    }
}

void DesktopOnDemand::offerTrayWhereThereIsOne() {
    if (inTray_) {
        return;
    }
    if (server_ != nullptr && TrayWindow(*server_, {}).isThere()) {
        part_->offerTray();
    } else if (bus_ != nullptr) {
        trayOfBus_ = bus_->followOwner(kTrayWatcher, [this](const std::string& owner) {
            if (!owner.empty()) { // perhaps only once the panel has come up
                part_->offerTray();
                trayOfBus_.reset();
            }
        });
    }
}

void DesktopOnDemand::popUpStatusMenu(int x, int y) {
    if (!waylandDisplayName().empty()) {
        showPreferences(); // there a point of the screen means nothing to a window
    } else if (auto* part = partOrWarning()) {
        part->popUpStatusMenu(x, y);
    }
}

void DesktopOnDemand::makeScreenMenus() {
    if (!displayNames_) {
        displayNames_.emplace(userDirectory("XDG_CACHE_HOME", ".cache") / "nocturo/displays.plist",
                              centers_.local);
    }
    menus_.makeScreenMenus();
    if (bus_ != nullptr) {
        launcherMenu_.emplace(menus_.dockMenu(), *bus_, loop_);
    }
}

} // namespace nocturo
