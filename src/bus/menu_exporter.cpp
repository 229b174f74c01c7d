// Qt exports menus of its windows and tray icons only, by classes that are its own. A dock's menu
// is flat and short, so what is changed is always told as a whole.

#include "bus/menu_exporter.h"

#include <QActionEvent>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QMetaObject>

#include <utility>

namespace nocturo {

/// The properties of the item with that number.
struct ItemProperties {
    int id = 0;
    QVariantMap properties;
};

// Found by the library through the type's namespace.

QDBusArgument& operator<<(QDBusArgument& argument, const ItemProperties& item) {
    argument.beginStructure();
    argument << item.id << item.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, ItemProperties& item) {
    argument.beginStructure();
    argument >> item.id >> item.properties;
    argument.endStructure();
    return argument;
}

namespace {

const QString kInterface = QStringLiteral("com.canonical.dbusmenu");
const QString kProperties = QStringLiteral("org.freedesktop.DBus.Properties");

constexpr auto kIntrospection = R"xml(  <interface name="com.canonical.dbusmenu">
    <property name="Version" type="u" access="read"/>
    <property name="TextDirection" type="s" access="read"/>
    <property name="Status" type="s" access="read"/>
    <property name="IconThemePath" type="as" access="read"/>
    <method name="GetLayout">
      <arg name="parentId" type="i" direction="in"/>
      <arg name="recursionDepth" type="i" direction="in"/>
      <arg name="propertyNames" type="as" direction="in"/>
      <arg name="revision" type="u" direction="out"/>
      <arg name="layout" type="(ia{sv}av)" direction="out"/>
    </method>
    <method name="GetGroupProperties">
      <arg name="ids" type="ai" direction="in"/>
      <arg name="propertyNames" type="as" direction="in"/>
      <arg name="properties" type="a(ia{sv})" direction="out"/>
    </method>
    <method name="GetProperty">
      <arg name="id" type="i" direction="in"/>
      <arg name="name" type="s" direction="in"/>
      <arg name="value" type="v" direction="out"/>
    </method>
    <method name="Event">
      <arg name="id" type="i" direction="in"/>
      <arg name="eventId" type="s" direction="in"/>
      <arg name="data" type="v" direction="in"/>
      <arg name="timestamp" type="u" direction="in"/>
    </method>
    <method name="EventGroup">
      <arg name="events" type="a(isvu)" direction="in"/>
      <arg name="idErrors" type="ai" direction="out"/>
    </method>
    <method name="AboutToShow">
      <arg name="id" type="i" direction="in"/>
      <arg name="needUpdate" type="b" direction="out"/>
    </method>
    <method name="AboutToShowGroup">
      <arg name="ids" type="ai" direction="in"/>
      <arg name="updatesNeeded" type="ai" direction="out"/>
      <arg name="idErrors" type="ai" direction="out"/>
    </method>
    <signal name="LayoutUpdated">
      <arg name="revision" type="u"/>
      <arg name="parent" type="i"/>
    </signal>
  </interface>
)xml";

QVariantMap rootProperties() {
    return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
}

QVariantMap menuProperties() {
    return {{QStringLiteral("Version"), 3U},
            {QStringLiteral("TextDirection"), QStringLiteral("ltr")},
            {QStringLiteral("Status"), QStringLiteral("normal")},
            {QStringLiteral("IconThemePath"), QStringList()}};
}

QVariant layoutStructure(int id, const QVariantMap& properties, const QList<QVariant>& children) {
    QDBusArgument structure;
    structure.beginStructure();
    structure << id << properties;
    structure.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const QVariant& child : children) {
        structure << QDBusVariant(child);
    }
    structure.endArray();
    structure.endStructure();
    return QVariant::fromValue(structure);
}

} // namespace

MenuExporter::MenuExporter(QMenu& menu, QDBusConnection bus, const QString& path)
    : menu_(menu), bus_(std::move(bus)), path_(path) {
    qDBusRegisterMetaType<ItemProperties>();
    qDBusRegisterMetaType<QList<ItemProperties>>();
    menu_.installEventFilter(this);
    bus_.registerVirtualObject(path_, this);
}

MenuExporter::~MenuExporter() {
    bus_.unregisterObject(path_);
}

QString MenuExporter::introspect(const QString& /*path*/) const {
    return QString::fromLatin1(kIntrospection);
}

bool MenuExporter::eventFilter(QObject* /*watched*/, QEvent* event) {
    const auto type = event->type();
    if (type == QEvent::ActionRemoved) {
        ids_.remove(static_cast<const QActionEvent*>(event)->action());
    }
    if (type == QEvent::ActionAdded || type == QEvent::ActionChanged ||
        type == QEvent::ActionRemoved) {
        // Once for all that changes together.
        if (!std::exchange(changed_, true)) {
            QMetaObject::invokeMethod(
                this, [this] { tellLayout(); }, Qt::QueuedConnection);
        }
    }
    return false;
}

void MenuExporter::tellLayout() {
    changed_ = false;
    QDBusMessage signal =
        QDBusMessage::createSignal(path_, kInterface, QStringLiteral("LayoutUpdated"));
    signal << ++revision_ << 0;
    bus_.send(signal);
}

bool MenuExporter::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    if (message.interface() != kProperties && message.interface() != kInterface) {
        return false;
    }
    const auto answer = answerTo(message);
    return answer && connection.send(message.createReply(*answer));
}

std::optional<QList<QVariant>> MenuExporter::answerTo(const QDBusMessage& message) {
    const auto one = [](const QVariant& value) { return QList<QVariant>{value}; };
    const QString method = message.member();
    const QList<QVariant> arguments = message.arguments();
    const int id = arguments.value(0).toInt();
    const QString name = arguments.value(1).toString();
    if (method == QLatin1String("Get")) {
        return one(QVariant::fromValue(QDBusVariant(menuProperties().value(name))));
    }
    if (method == QLatin1String("GetAll")) {
        return one(menuProperties());
    }
    if (method == QLatin1String("GetLayout")) {
        return layout(id);
    }
    if (method == QLatin1String("GetGroupProperties")) {
        return one(groupProperties(qdbus_cast<QList<int>>(arguments.value(0))));
    }
    if (method == QLatin1String("GetProperty")) {
        const QAction* item = itemOf(id);
        const QVariant value = item != nullptr ? propertiesOf(*item).value(name) : QVariant();
        return one(QVariant::fromValue(QDBusVariant(value.isValid() ? value : QString())));
    }
    if (method == QLatin1String("Event")) {
        handleEvent(id, name);
        return QList<QVariant>();
    }
    if (method == QLatin1String("EventGroup")) {
        return one(QVariant::fromValue(handleEvents(arguments.value(0).value<QDBusArgument>())));
    }
    if (method == QLatin1String("AboutToShow")) {
        return one(false);
    }
    if (method == QLatin1String("AboutToShowGroup")) {
        const QVariant none = QVariant::fromValue(QList<int>());
        return QList<QVariant>{none, none};
    }
    return std::nullopt;
}

QList<QVariant> MenuExporter::layout(int parent) {
    QList<QVariant> children;
    if (parent == 0) {
        for (const QAction* item : menu_.actions()) {
            children.append(layoutOf(*item));
        }
        return {revision_, layoutStructure(0, rootProperties(), children)};
    }
    const QAction* item = itemOf(parent);
    return {revision_, item != nullptr ? layoutOf(*item) : layoutStructure(parent, {}, {})};
}

QVariant MenuExporter::groupProperties(const QList<int>& ids) {
    QList<ItemProperties> list;
    if (ids.isEmpty() || ids.contains(0)) {
        list.append({0, rootProperties()});
    }
    for (const QAction* item : menu_.actions()) {
        const int id = idOf(item);
        if (ids.isEmpty() || ids.contains(id)) {
            list.append({id, propertiesOf(*item)});
        }
    }
    return QVariant::fromValue(list);
}

bool MenuExporter::handleEvent(int id, const QString& event) {
    QAction* item = itemOf(id);
    if (item != nullptr && event == QLatin1String("clicked")) {
        // Later, so that the dock has its answer first.
        QMetaObject::invokeMethod(item, &QAction::trigger, Qt::QueuedConnection);
    }
    return id == 0 || item != nullptr;
}

QList<int> MenuExporter::handleEvents(const QDBusArgument& events) {
    QList<int> unknown;
    events.beginArray();
    while (!events.atEnd()) {
        int id = 0;
        QString event;
        QDBusVariant data;
        uint time = 0;
        events.beginStructure();
        events >> id >> event >> data >> time;
        events.endStructure();
        if (!handleEvent(id, event)) {
            unknown.append(id);
        }
    }
    events.endArray();
    return unknown;
}

int MenuExporter::idOf(const QAction* item) {
    auto found = ids_.find(item);
    if (found == ids_.end()) {
        found = ids_.insert(item, ++lastId_);
    }
    return *found;
}

QAction* MenuExporter::itemOf(int id) const {
    for (QAction* item : menu_.actions()) {
        if (ids_.value(item) == id && id != 0) {
            return item;
        }
    }
    return nullptr;
}

QVariantMap MenuExporter::propertiesOf(const QAction& item) const {
    if (item.isSeparator()) {
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    }
    QString label = item.text();
    QVariantMap properties = {
        {QStringLiteral("label"), label.replace(u'_', QStringLiteral("__")).replace(u'&', u'_')},
        {QStringLiteral("enabled"), item.isEnabled()},
        {QStringLiteral("visible"), item.isVisible()}};
    if (item.isCheckable()) {
        properties.insert(QStringLiteral("toggle-type"), QStringLiteral("checkmark"));
        properties.insert(QStringLiteral("toggle-state"), item.isChecked() ? 1 : 0);
    }
    return properties;
}

QVariant MenuExporter::layoutOf(const QAction& item) {
    return layoutStructure(idOf(&item), propertiesOf(item), {});
}

} // namespace nocturo
