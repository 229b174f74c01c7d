#include "bus/status_notifier_item.h"

#include "app/status_image.h"
#include "base/activation_token.h"
#include "base/environment.h"
#include "base/event_loop.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <system_error>
#include <utility>

namespace nocturo {

namespace {

constexpr const char* kPath = "/StatusNotifierItem";
constexpr const char* kMenuPath = "/MenuBar";
constexpr const char* kInterface = "org.kde.StatusNotifierItem";
constexpr const char* kWatcher = "org.kde.StatusNotifierWatcher";
constexpr const char* kWatcherPath = "/StatusNotifierWatcher";
constexpr const char* kName = "Nocturo";
constexpr const char* kPixmaps = "a(iiay)";

std::string_view imageName(bool active) {
    return active ? kStatusActiveTemplate : kStatusTemplate;
}

/// The name under which the icon theme has the image, or nothing. Trays take a name that they
/// cannot find for an item without an image.
std::string themedName(bool active) {
    std::string name = statusIconName(imageName(active));
    for (const auto& directory : dataDirectories()) {
        std::error_code error;
        if (std::filesystem::exists(directory / "icons/hicolor/symbolic/apps" / (name + ".svg"),
                                    error)) {
            return name;
        }
    }
    return {};
}

/// Rows of pixels, each as the bytes alpha, red, green and blue.
int appendPixmaps(sd_bus_message* reply, bool active) {
    sd_bus_message_open_container(reply, SD_BUS_TYPE_ARRAY, "(iiay)");
    for (const int side : kStatusImageSides) {
        std::vector<std::uint8_t> bytes;
        for (const std::uint32_t pixel : statusImage(imageName(active), side, std::nullopt)) {
            for (const unsigned shift : {24U, 16U, 8U, 0U}) {
                bytes.push_back(static_cast<std::uint8_t>(pixel >> shift));
            }
        }
        sd_bus_message_open_container(reply, SD_BUS_TYPE_STRUCT, "iiay");
        sd_bus_message_append(reply, "ii", side, side);
        sd_bus_message_append_array(reply, 'y', bytes.data(), bytes.size());
        sd_bus_message_close_container(reply);
    }
    return sd_bus_message_close_container(reply);
}

} // namespace

struct StatusNotifierItem::Table {
    static StatusNotifierItem& item(void* self) { return *static_cast<StatusNotifierItem*>(self); }

    static int showMenu(sd_bus_message* call, void* self, sd_bus_error* /*error*/) {
        int x = 0;
        int y = 0;
        sd_bus_message_read(call, "ii", &x, &y);
        const int sent = sd_bus_reply_method_return(call, nullptr);
        const auto wanted = item(self).handlers_.menuWanted; // it may end the item
        wanted(x, y);
        return sent;
    }

    static int middleClick(sd_bus_message* call, void* self, sd_bus_error* /*error*/) {
        const int sent = sd_bus_reply_method_return(call, nullptr);
        const auto clicked = item(self).handlers_.middleClicked;
        clicked();
        return sent;
    }

    static int scroll(sd_bus_message* call, void* self, sd_bus_error* /*error*/) {
        int delta = 0;
        const char* orientation = "";
        sd_bus_message_read(call, "is", &delta, &orientation);
        const int sent = sd_bus_reply_method_return(call, nullptr);
        const int steps = item(self).wheelSteps(delta);
        if (std::string_view(orientation) != "horizontal" && steps != 0) {
            const auto scrolled = item(self).handlers_.scrolled;
            scrolled(steps);
        }
        return sent;
    }

    /// Lets the window that a pick opens next come to the front.
    static int takeToken(sd_bus_message* call, void* /*self*/, sd_bus_error* /*error*/) {
        const char* token = "";
        sd_bus_message_read(call, "s", &token);
        keepActivationToken(token);
        return sd_bus_reply_method_return(call, nullptr);
    }

    static int text(sd_bus* /*bus*/, const char* /*path*/, const char* /*interface*/,
                    const char* property, sd_bus_message* reply, void* self,
                    sd_bus_error* /*error*/) {
        const std::string_view name(property);
        std::string value;
        if (name == "Category") {
            value = "ApplicationStatus";
        } else if (name == "Id" || name == "Title") {
            value = kName;
        } else if (name == "Status") {
            value = "Active";
        } else if (name == "IconName") {
            value = themedName(item(self).active_);
        }
        return sd_bus_message_append(reply, "s", value.c_str());
    }

    static int pixmap(sd_bus* /*bus*/, const char* /*path*/, const char* /*interface*/,
                      const char* property, sd_bus_message* reply, void* self,
                      sd_bus_error* /*error*/) {
        if (std::string_view(property) == "IconPixmap") {
            return appendPixmaps(reply, item(self).active_);
        }
        return sd_bus_message_append(reply, kPixmaps, 0);
    }

    static int other(sd_bus* /*bus*/, const char* /*path*/, const char* /*interface*/,
                     const char* property, sd_bus_message* reply, void* self,
                     sd_bus_error* /*error*/) {
        const std::string_view name(property);
        if (name == "Menu") {
            return sd_bus_message_append(reply, "o", kMenuPath);
        }
        if (name == "ItemIsMenu") {
            return sd_bus_message_append(reply, "b", 1);
        }
        if (name == "ToolTip") {
            return sd_bus_message_append(reply, "(sa(iiay)ss)", "", 0, kName,
                                         item(self).toolTip_.c_str());
        }
        return sd_bus_message_append(reply, "i", 0); // WindowId
    }

    static const std::array<sd_bus_vtable, 28> members;
};

const std::array<sd_bus_vtable, 28> StatusNotifierItem::Table::members = {{
    SD_BUS_VTABLE_START(SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_PROPERTY("Category", "s", text, 0, SD_BUS_VTABLE_PROPERTY_CONST),
    SD_BUS_PROPERTY("Id", "s", text, 0, SD_BUS_VTABLE_PROPERTY_CONST),
    SD_BUS_PROPERTY("Title", "s", text, 0, SD_BUS_VTABLE_PROPERTY_CONST),
    SD_BUS_PROPERTY("Status", "s", text, 0, 0),
    SD_BUS_PROPERTY("WindowId", "i", other, 0, SD_BUS_VTABLE_PROPERTY_CONST),
    SD_BUS_PROPERTY("IconThemePath", "s", text, 0, 0),
    SD_BUS_PROPERTY("Menu", "o", other, 0, SD_BUS_VTABLE_PROPERTY_CONST),
    SD_BUS_PROPERTY("ItemIsMenu", "b", other, 0, SD_BUS_VTABLE_PROPERTY_CONST),
    SD_BUS_PROPERTY("IconName", "s", text, 0, 0),
    SD_BUS_PROPERTY("IconPixmap", kPixmaps, pixmap, 0, 0),
    SD_BUS_PROPERTY("OverlayIconName", "s", text, 0, 0),
    SD_BUS_PROPERTY("OverlayIconPixmap", kPixmaps, pixmap, 0, 0),
    SD_BUS_PROPERTY("AttentionIconName", "s", text, 0, 0),
    SD_BUS_PROPERTY("AttentionIconPixmap", kPixmaps, pixmap, 0, 0),
    SD_BUS_PROPERTY("AttentionMovieName", "s", text, 0, 0),
    SD_BUS_PROPERTY("ToolTip", "(sa(iiay)ss)", other, 0, 0),
    SD_BUS_METHOD_WITH_ARGS("ContextMenu", SD_BUS_ARGS("i", x, "i", y), SD_BUS_NO_RESULT, showMenu,
                            SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_ARGS("Activate", SD_BUS_ARGS("i", x, "i", y), SD_BUS_NO_RESULT, showMenu,
                            SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_ARGS("SecondaryActivate", SD_BUS_ARGS("i", x, "i", y), SD_BUS_NO_RESULT,
                            middleClick, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_ARGS("Scroll", SD_BUS_ARGS("i", delta, "s", orientation), SD_BUS_NO_RESULT,
                            scroll, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_ARGS("ProvideXdgActivationToken", SD_BUS_ARGS("s", token), SD_BUS_NO_RESULT,
                            takeToken, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_SIGNAL("NewTitle", "", 0),
    SD_BUS_SIGNAL("NewIcon", "", 0),
    SD_BUS_SIGNAL("NewToolTip", "", 0),
    SD_BUS_SIGNAL_WITH_ARGS("NewStatus", SD_BUS_ARGS("s", status), 0),
    SD_BUS_VTABLE_END,
}};

StatusNotifierItem::StatusNotifierItem(Menu& menu, EventLoop& loop, const std::string& busAddress,
                                       Handlers handlers)
    : handlers_(std::move(handlers)), bus_(Bus::connect(busAddress, loop)) {
    if (bus_ == nullptr) {
        hosting_ = Hosting::nobody;
        return;
    }
    menu_ = std::make_unique<MenuExporter>(menu, *bus_, loop, kMenuPath);
    bus_->rejoin();
    object_ = bus_->addObject(kPath, kInterface, Table::members.data(), this);
    follow();
}

StatusNotifierItem::~StatusNotifierItem() = default;

void StatusNotifierItem::setActive(bool active) {
    if (std::exchange(active_, active) != active && bus_ != nullptr) {
        sd_bus_emit_signal(bus_->handle(), kPath, kInterface, "NewIcon", nullptr);
    }
}

void StatusNotifierItem::setToolTip(const std::string& sentence) {
    if (std::exchange(toolTip_, sentence) != sentence && bus_ != nullptr) {
        sd_bus_emit_signal(bus_->handle(), kPath, kInterface, "NewToolTip", nullptr);
    }
}

// Some panels tell eighths of a degree, 120 for each notch and less for what turns smoothly, others
// one for each notch.
int StatusNotifierItem::wheelSteps(int delta) {
    constexpr int kNotch = 120;
    constexpr int kMostNotches = 10;
    if (std::abs(delta) <= kMostNotches) {
        return delta;
    }
    wheelDegrees_ += std::clamp(delta, -kMostNotches * kNotch, kMostNotches * kNotch);
    const int steps = wheelDegrees_ / kNotch;
    wheelDegrees_ -= steps * kNotch;
    return steps;
}

void StatusNotifierItem::follow() {
    // A watcher may be there before anybody shows what it watches, and stay when that goes.
    const auto ask = [this](sd_bus_message* /*signal*/) { askForHost(); };
    hostCame_ =
        bus_->onSignal(kWatcher, kWatcherPath, kWatcher, "StatusNotifierHostRegistered", ask);
    hostWent_ =
        bus_->onSignal(kWatcher, kWatcherPath, kWatcher, "StatusNotifierHostUnregistered", ask);
    watcher_ =
        bus_->followOwner(kWatcher, [this](const std::string& owner) { watcherDidChange(owner); });
}

void StatusNotifierItem::watcherDidChange(const std::string& owner) {
    if (owner_ == owner) {
        return;
    }
    owner_ = owner;
    registration_.reset();
    question_.reset();
    if (owner.empty()) {
        setHosting(Hosting::nobody);
        return;
    }
    const char* name = "";
    sd_bus_get_unique_name(bus_->handle(), &name);
    const BusMessage call =
        bus_->newCall(kWatcher, kWatcherPath, kWatcher, "RegisterStatusNotifierItem");
    sd_bus_message_append(call.get(), "s", name);
    registration_ = bus_->call(call, [](sd_bus_message* /*answer*/) {});
    askForHost();
}

void StatusNotifierItem::askForHost() {
    const BusMessage call =
        bus_->newCall(kWatcher, kWatcherPath, "org.freedesktop.DBus.Properties", "Get");
    sd_bus_message_append(call.get(), "ss", kWatcher, "IsStatusNotifierHostRegistered");
    question_ = bus_->call(call, [this](sd_bus_message* answer) {
        int isHosted = 0;
        sd_bus_message_read(answer, "v", "b", &isHosted);
        setHosting(isHosted != 0 ? Hosting::shown : Hosting::nobody);
    });
}

void StatusNotifierItem::setHosting(Hosting hosting) {
    if (std::exchange(hosting_, hosting) != hosting) {
        const auto changed = handlers_.hostingDidChange; // it may end the item
        changed();
    }
}

} // namespace nocturo
