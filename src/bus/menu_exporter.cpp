// The menus are short, so what is changed is always told as a whole. sd-bus compares the
// types of a call with those of the table before it calls anything here.

#include "bus/menu_exporter.h"

#include <array>
#include <chrono>
#include <optional>
#include <string_view>
#include <utility>

namespace nocturo {

namespace {

constexpr const char* kMenuInterface = "com.canonical.dbusmenu";
constexpr std::size_t kMaxListed = 1000; // of what a caller lists; a menu has a dozen items
constexpr Menu::Id kMenuItself = Menu::kNone;

std::string label(const MenuItem& item) {
    const std::string text = indentedText(item);
    std::string label;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '_') {
            label += "__";
        } else if (text[at] != '&') {
            label += text[at];
        } else if (text.compare(at, 2, "&&") == 0) {
            label += text[++at];
        } else {
            label += '_';
        }
    }
    return label;
}

void appendText(sd_bus_message* message, const char* name, const std::string& value) {
    sd_bus_message_append(message, "{sv}", name, "s", value.c_str());
}

void appendFlag(sd_bus_message* message, const char* name, bool value) {
    sd_bus_message_append(message, "{sv}", name, "b", value ? 1 : 0);
}

/// As the type a{sv}; nothing in it where there is no item.
void appendProperties(sd_bus_message* message, const Menu& menu, Menu::Id id) {
    const MenuItem* item = menu.item(id);
    sd_bus_message_open_container(message, SD_BUS_TYPE_ARRAY, "{sv}");
    if (id == kMenuItself || menu.hasSubmenu(id)) {
        appendText(message, "children-display", "submenu");
    }
    if (item != nullptr && item->isSeparator) {
        appendText(message, "type", "separator");
    } else if (item != nullptr) {
        appendText(message, "label", label(*item));
        appendFlag(message, "enabled", true);
        appendFlag(message, "visible", item->isVisible);
        if (item->isCheckable) {
            appendText(message, "toggle-type", "checkmark");
            sd_bus_message_append(message, "{sv}", "toggle-state", "i", item->isChecked ? 1 : 0);
        }
    }
    sd_bus_message_close_container(message);
}

/// As the type (ia{sv}av).
void appendLayout(sd_bus_message* message, const Menu& menu, Menu::Id id) {
    sd_bus_message_open_container(message, SD_BUS_TYPE_STRUCT, "ia{sv}av");
    sd_bus_message_append(message, "i", id);
    appendProperties(message, menu, id);
    sd_bus_message_open_container(message, SD_BUS_TYPE_ARRAY, "v");
    for (const Menu::Entry& entry : menu.entries()) {
        if (entry.item.under == id) {
            sd_bus_message_open_container(message, SD_BUS_TYPE_VARIANT, "(ia{sv}av)");
            appendLayout(message, menu, entry.id);
            sd_bus_message_close_container(message);
        }
    }
    sd_bus_message_close_container(message);
    sd_bus_message_close_container(message);
}

int listIsTooLong(sd_bus_error* error) {
    return sd_bus_error_set(error, SD_BUS_ERROR_LIMITS_EXCEEDED, "The list is too long.");
}

/// The numbers of an argument "ai"; nothing when there are too many.
std::optional<std::vector<Menu::Id>> readIds(sd_bus_message* call) {
    std::vector<Menu::Id> ids;
    Menu::Id id = 0;
    sd_bus_message_enter_container(call, SD_BUS_TYPE_ARRAY, "i");
    while (sd_bus_message_read(call, "i", &id) > 0) {
        if (ids.size() == kMaxListed) {
            return std::nullopt;
        }
        ids.push_back(id);
    }
    sd_bus_message_exit_container(call);
    return ids;
}

void appendIds(sd_bus_message* message, const std::vector<Menu::Id>& ids) {
    sd_bus_message_append_array(message, 'i', ids.data(), ids.size() * sizeof(Menu::Id));
}

BusMessage replyTo(sd_bus_message* call) {
    sd_bus_message* reply = nullptr;
    sd_bus_message_new_method_return(call, &reply);
    return BusMessage(reply);
}

int send(const BusMessage& reply) {
    return sd_bus_send(nullptr, reply.get(), nullptr);
}

} // namespace

struct MenuExporter::Table {
    template <int (MenuExporter::*Method)(sd_bus_message*, sd_bus_error*)>
    static int call(sd_bus_message* call, void* self, sd_bus_error* error) {
        return (static_cast<MenuExporter*>(self)->*Method)(call, error);
    }
    template <int (*Method)(sd_bus_message*, sd_bus_error*)>
    static int call(sd_bus_message* call, void* /*self*/, sd_bus_error* error) {
        return Method(call, error);
    }

    static int property(sd_bus* /*bus*/, const char* /*path*/, const char* /*interface*/,
                        const char* property, sd_bus_message* reply, void* /*self*/,
                        sd_bus_error* /*error*/) {
        const std::string_view name(property);
        if (name == "Version") {
            return sd_bus_message_append(reply, "u", 3U);
        }
        if (name == "IconThemePath") {
            return sd_bus_message_append(reply, "as", 0);
        }
        return sd_bus_message_append(reply, "s", name == "Status" ? "normal" : "ltr");
    }

    static const std::array<sd_bus_vtable, 14> members;
};

const std::array<sd_bus_vtable, 14> MenuExporter::Table::members = {{
    SD_BUS_VTABLE_START(SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_PROPERTY("Version", "u", property, 0, SD_BUS_VTABLE_PROPERTY_CONST),
    SD_BUS_PROPERTY("TextDirection", "s", property, 0, SD_BUS_VTABLE_PROPERTY_CONST),
    SD_BUS_PROPERTY("Status", "s", property, 0, SD_BUS_VTABLE_PROPERTY_CONST),
    SD_BUS_PROPERTY("IconThemePath", "as", property, 0, SD_BUS_VTABLE_PROPERTY_CONST),
    SD_BUS_METHOD_WITH_ARGS("GetLayout",
                            SD_BUS_ARGS("i", parentId, "i", recursionDepth, "as", propertyNames),
                            SD_BUS_RESULT("u", revision, "(ia{sv}av)", layout),
                            call<&MenuExporter::getLayout>, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_ARGS("GetGroupProperties", SD_BUS_ARGS("ai", ids, "as", propertyNames),
                            SD_BUS_RESULT("a(ia{sv})", properties),
                            call<&MenuExporter::getGroupProperties>, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_ARGS("GetProperty", SD_BUS_ARGS("i", id, "s", name),
                            SD_BUS_RESULT("v", value), call<&MenuExporter::getProperty>,
                            SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_ARGS("Event", SD_BUS_ARGS("i", id, "s", eventId, "v", data, "u", timestamp),
                            SD_BUS_NO_RESULT, call<&MenuExporter::event>,
                            SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_ARGS("EventGroup", SD_BUS_ARGS("a(isvu)", events),
                            SD_BUS_RESULT("ai", idErrors), call<&MenuExporter::eventGroup>,
                            SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_ARGS("AboutToShow", SD_BUS_ARGS("i", id), SD_BUS_RESULT("b", needUpdate),
                            call<&MenuExporter::aboutToShow>, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD_WITH_ARGS("AboutToShowGroup", SD_BUS_ARGS("ai", ids),
                            SD_BUS_RESULT("ai", updatesNeeded, "ai", idErrors),
                            call<&MenuExporter::aboutToShowGroup>, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_SIGNAL_WITH_ARGS("LayoutUpdated", SD_BUS_ARGS("u", revision, "i", parent), 0),
    SD_BUS_VTABLE_END,
}};

MenuExporter::MenuExporter(Menu& menu, const Bus& bus, RunLoop& runLoop, std::string path)
    : menu_(menu), bus_(bus), runLoop_(runLoop), path_(std::move(path)) {
    object_ = bus_.addObject(path_, kMenuInterface, Table::members.data(), this);
    menu_.changes().addObserver(this, kMenuDidChangeNotification, [this] { menuDidChange(); });
}

MenuExporter::~MenuExporter() {
    menu_.changes().removeObserver(this);
}

// Once for all that changes together.
void MenuExporter::menuDidChange() {
    if (change_ == nullptr) {
        change_ = runLoop_.scheduleTimer(std::chrono::milliseconds(0), [this] { tellLayout(); });
    }
}

void MenuExporter::tellLayout() {
    change_.reset();
    sd_bus_emit_signal(bus_.handle(), path_.c_str(), kMenuInterface, "LayoutUpdated", "ui",
                       ++revision_, kMenuItself);
}

int MenuExporter::getLayout(sd_bus_message* call, sd_bus_error* /*error*/) {
    Menu::Id parent = kMenuItself;
    sd_bus_message_read(call, "i", &parent);
    const BusMessage reply = replyTo(call);
    sd_bus_message_append(reply.get(), "u", revision_);
    appendLayout(reply.get(), menu_, parent);
    return send(reply);
}

int MenuExporter::getGroupProperties(sd_bus_message* call, sd_bus_error* error) {
    const auto ids = readIds(call);
    if (!ids) {
        return listIsTooLong(error);
    }
    const BusMessage reply = replyTo(call);
    sd_bus_message_open_container(reply.get(), SD_BUS_TYPE_ARRAY, "(ia{sv})");
    const auto append = [&](Menu::Id id) {
        sd_bus_message_open_container(reply.get(), SD_BUS_TYPE_STRUCT, "ia{sv}");
        sd_bus_message_append(reply.get(), "i", id);
        appendProperties(reply.get(), menu_, id);
        sd_bus_message_close_container(reply.get());
    };
    if (ids->empty()) {
        append(kMenuItself);
        for (const Menu::Entry& entry : menu_.entries()) {
            append(entry.id);
        }
    }
    for (const Menu::Id id : *ids) {
        if (id == kMenuItself || menu_.item(id) != nullptr) {
            append(id);
        }
    }
    sd_bus_message_close_container(reply.get());
    return send(reply);
}

int MenuExporter::getProperty(sd_bus_message* call, sd_bus_error* /*error*/) {
    Menu::Id id = kMenuItself;
    const char* name = "";
    sd_bus_message_read(call, "is", &id, &name);
    const BusMessage reply = replyTo(call);
    const MenuItem* item = menu_.item(id);
    const std::string_view wanted(name);
    if (item != nullptr && wanted == "label" && !item->isSeparator) {
        sd_bus_message_append(reply.get(), "v", "s", label(*item).c_str());
    } else if (item != nullptr && (wanted == "enabled" || wanted == "visible")) {
        const bool value = wanted == "enabled" || item->isVisible;
        sd_bus_message_append(reply.get(), "v", "b", value ? 1 : 0);
    } else if (item != nullptr && wanted == "toggle-state" && item->isCheckable) {
        sd_bus_message_append(reply.get(), "v", "i", item->isChecked ? 1 : 0);
    } else {
        const bool isLine = item != nullptr && wanted == "type" && item->isSeparator;
        const bool isMenu =
            wanted == "children-display" && (id == kMenuItself || menu_.hasSubmenu(id));
        sd_bus_message_append(reply.get(), "v", "s",
                              isLine   ? "separator"
                              : isMenu ? "submenu"
                                       : "");
    }
    return send(reply);
}

int MenuExporter::event(sd_bus_message* call, sd_bus_error* /*error*/) {
    Menu::Id id = kMenuItself;
    const char* kind = "";
    sd_bus_message_read(call, "is", &id, &kind);
    const bool isPick = std::string_view(kind) == "clicked";
    const int sent = sd_bus_reply_method_return(call, nullptr); // before the item does anything
    if (isPick) {
        menu_.pick(id);
    }
    return sent;
}

int MenuExporter::eventGroup(sd_bus_message* call, sd_bus_error* error) {
    std::vector<Menu::Id> picked;
    std::vector<Menu::Id> unknown;
    std::size_t count = 0;
    sd_bus_message_enter_container(call, SD_BUS_TYPE_ARRAY, "(isvu)");
    while (sd_bus_message_enter_container(call, SD_BUS_TYPE_STRUCT, "isvu") > 0) {
        if (++count > kMaxListed) {
            return listIsTooLong(error);
        }
        Menu::Id id = kMenuItself;
        const char* kind = "";
        sd_bus_message_read(call, "is", &id, &kind);
        sd_bus_message_skip(call, "vu");
        sd_bus_message_exit_container(call);
        if (id != kMenuItself && menu_.item(id) == nullptr) {
            unknown.push_back(id);
        } else if (std::string_view(kind) == "clicked") {
            picked.push_back(id);
        }
    }
    const BusMessage reply = replyTo(call);
    appendIds(reply.get(), unknown);
    const int sent = send(reply);
    Menu& menu = menu_; // a pick may end the exporter
    for (const Menu::Id id : picked) {
        menu.pick(id);
    }
    return sent;
}

int MenuExporter::aboutToShow(sd_bus_message* call, sd_bus_error* /*error*/) {
    menu_.changes().post(kMenuWillOpenNotification);
    return sd_bus_reply_method_return(call, "b", 0);
}

int MenuExporter::aboutToShowGroup(sd_bus_message* call, sd_bus_error* /*error*/) {
    menu_.changes().post(kMenuWillOpenNotification);
    return sd_bus_reply_method_return(call, "aiai", 0, 0);
}

} // namespace nocturo
