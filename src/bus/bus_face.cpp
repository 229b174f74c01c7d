#include "bus/bus_face.h"

#include "app/app_controller.h"
#include "app/disturbance_watch.h"
#include "app/user_interface.h"
#include "base/notification_center.h"
#include "base/notification_names.h"
#include "base/texts/translated.h"
#include "bus/bus_names.h"
#include "bus/bus_values.h"
#include "bus/launcher_face.h"
#include "displays/affected_screen_set.h"
#include "displays/display_functions.h"
#include "effects/color_filter_effect.h"
#include "effects/dim_effect.h"
#include "hotkeys/hot_key_center.h"
#include "hotkeys/hot_key_text.h"
#include "hotkeys/key_naming.h"
#include "hotkeys/saved_hot_key.h"
#include "nocturo1_adaptor.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"
#include "settings/settings_table.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QMetaProperty>

#include <algorithm>
#include <utility>

namespace nocturo {

namespace {

// Long enough for a busy first instance, short enough for the user who waits for the second.
constexpr int kReopenTimeoutMs = 2000;

} // namespace

BusFace::BusFace(NDAppController& controller, DefaultsStore& defaults,
                 NotificationCenter& localCenter, const DisturbanceWatch& disturbances,
                 UserInterface& userInterface)
    : controller_(controller), defaults_(defaults), localCenter_(localCenter),
      disturbances_(disturbances), userInterface_(userInterface) {
    qDBusRegisterMetaType<QList<QVariantMap>>();
    qDBusRegisterMetaType<QList<qlonglong>>();
    new Nocturo1Adaptor(this);
}

BusFace::~BusFace() {
    localCenter_.removeObserver(this);
}

bool BusFace::takeName(const QDBusConnection& bus) {
    if (!bus_) {
        bus_ = bus;
        launcherFace_ = new LauncherFace(this, bus, controller_);
        // The object first: whoever sees the name may call at once.
        bus_->registerObject(QLatin1String(kObjectPath), this);
    }
    return bus_->registerService(QLatin1String(kBusName));
}

void BusFace::announceChanges() {
    announced_ = snapshot();
    for (const auto name :
         {NSUserDefaultsDidChangeNotification, kEffectActivationNotification,
          NSApplicationDidChangeScreenParametersNotification, kDisturbanceNotification}) {
        localCenter_.addObserver(this, name, [this] { announceSoon(); });
    }
}

void BusFace::launchDidFinish() {
    announceSoon(); // what the launch itself changed without a word
    if (launcherFace_ != nullptr) {
        launcherFace_->launchDidFinish();
    }
}

bool BusFace::active() const {
    return controller_.effectActive();
}

QString BusFace::displayServicesName() const {
    const DisplayServices* services = displayServices();
    return services != nullptr ? QString::fromStdString(std::string(services->name())) : QString();
}

QList<QVariantMap> BusFace::displays() const {
    QList<QVariantMap> list;
    DisplayServices* services = displayServices();
    const auto* online = services != nullptr ? services->onlineDisplays() : nullptr;
    if (online == nullptr) {
        return list;
    }
    const std::vector<double> affected = affectedScreenSet(defaults_);
    const auto& controllers = controller_.screenControllers();
    const auto driven = std::min<std::size_t>(online->size(), kZQMaxDisplays);
    for (std::size_t i = 0; i < driven; ++i) {
        const DisplayInfo& info = (*online)[i];
        const bool inSet =
            affected.empty() || std::find(affected.begin(), affected.end(),
                                          static_cast<double>(info.id)) != affected.end();
        const bool applied =
            controllers && std::any_of(controllers->begin(), controllers->end(), [&](auto& each) {
                return each->screenID() == info.id && each->hasCurve();
            });
        list.append({{QStringLiteral("number"), static_cast<int>(i) + 1},
                     {QStringLiteral("id"), info.id},
                     {QStringLiteral("name"), QString::fromStdString(info.name)},
                     {QStringLiteral("main"), info.main},
                     {QStringLiteral("rampSize"), info.rampSize},
                     {QStringLiteral("affected"), inSet},
                     {QStringLiteral("applied"), applied}});
    }
    return list;
}

QStringList BusFace::effects() const {
    return busValue(effectiveValue(defaults_, *settingNamed(NDGroupEffect::kName))).toStringList();
}

double BusFace::dimLevel() const {
    return shortestReal(NDDimEffect::level());
}

double BusFace::colorFilterHue() const {
    return shortestReal(NDColorFilterEffect::hue());
}

double BusFace::colorFilterVividness() const {
    return shortestReal(NDColorFilterEffect::vividness());
}

QList<qlonglong> BusFace::affectedScreens() const {
    QList<qlonglong> numbers;
    for (const double number : affectedScreenSet(defaults_)) {
        numbers.append(static_cast<qlonglong>(number));
    }
    return numbers;
}

QVariantMap BusFace::hotKey() const {
    const auto saved = NDSavedHotKey(defaults_);
    if (saved == nullptr) {
        return {};
    }
    const std::uint16_t keyCode = saved->keyCode();
    const std::uint64_t flags = saved->modifierFlags();
    const QString text = QString::fromStdString(HXStringFromKeyCode(keyCode, flags, layout_));
    const bool registered =
        HXHotKeyCenter::sharedHotKeyCenter().hasRegisteredHotKeyWithKeyCode(keyCode, flags);
    return {{QStringLiteral("text"), text.toUpper()},
            {QStringLiteral("keyCode"), static_cast<int>(keyCode)},
            {QStringLiteral("modifierFlags"), static_cast<qlonglong>(flags)},
            {QStringLiteral("enabled"), defaults_.boolForKey(kUseHotKey)},
            {QStringLiteral("registered"), registered}};
}

QVariantMap BusFace::settings() const {
    QVariantMap map;
    for (const Setting& setting : settingsTable()) {
        map.insert(QString::fromStdString(std::string(setting.key)),
                   busValue(effectiveValue(defaults_, setting)));
    }
    return map;
}

uint BusFace::disturbances() const {
    return disturbances_.count();
}

QString BusFace::disturber() const {
    return QString::fromStdString(disturbances_.disturber());
}

void BusFace::SetActive(bool active) {
    controller_.setEffectActive(active, true);
}

void BusFace::Toggle() {
    controller_.toggleGlobalEffect();
}

void BusFace::AddEffects(const QStringList& names) {
    const auto problem =
        problemWith(*settingNamed(NDGroupEffect::kName), *propertyValue(QVariant(names)));
    if (problem) {
        refuse(*problem);
        return;
    }
    for (const QString& name : names) {
        NDGroupEffect::effect().addEffect(name.toStdString());
    }
}

void BusFace::RemoveEffects(const QStringList& names) {
    for (const QString& name : names) {
        NDGroupEffect::effect().removeEffect(name.toStdString());
    }
}

void BusFace::SetSetting(const QString& key, const QDBusVariant& value) {
    const Setting* setting = knownSetting(key);
    if (setting == nullptr) {
        return;
    }
    auto stored = propertyValue(value.variant());
    if (!stored) {
        refuse(translated("No setting takes a value of this type."));
        return;
    }
    if (const auto problem = problemWith(*setting, *stored)) {
        refuse(*problem);
        return;
    }
    defaults_.setObject(*std::move(stored), setting->key);
}

void BusFace::ResetSetting(const QString& key) {
    if (const Setting* setting = knownSetting(key)) {
        defaults_.removeObjectForKey(setting->key);
    }
}

void BusFace::ToggleScreen(uint id) {
    chooseAffectedScreen(defaults_, static_cast<std::int32_t>(id));
}

void BusFace::AffectAllScreens() {
    chooseAffectedScreen(defaults_, 0);
}

void BusFace::SetHotKey(const QString& text) {
    HotKeyCombination combination; // both numbers 0: no hot key
    if (!text.isEmpty()) {
        const auto result = parseHotKeyText(text.toStdString(), layout_);
        if (!result) {
            refuse(result.error().text + " " + hotKeyTextSyntax());
            return;
        }
        combination = *result;
    }
    defaults_.setInteger(combination.keyCode, kHotKeyCode);
    defaults_.setInteger(static_cast<std::int64_t>(combination.modifierFlags), kHotKeyModifiers);
}

void BusFace::OpenFile(const QString& path) {
    userInterface_.loadPreferences();
    if (!controller_.openFile(path.toStdString())) {
        fail(translated("\"%@\" is not an effect document.", {path.toStdString()}));
    }
}

void BusFace::SaveFile(const QString& path) {
    if (!userInterface_.saveEffectFile(path.toStdString())) {
        fail(translated("Could not save settings at \"%@\".", {path.toStdString()}));
    }
}

void BusFace::ShowPreferences() {
    controller_.openPreferences();
}

void BusFace::ShowAboutBox() {
    controller_.openAboutBox();
}

QByteArray BusFace::RenderPreview(uint id) {
    const QList<QVariantMap> online = displays();
    if (std::none_of(online.begin(), online.end(), [&](const QVariantMap& display) {
            return display.value(QStringLiteral("id")).toUInt() == id;
        })) {
        refuse(translated("There is no display with the identifier %d.", {std::to_string(id)}));
        return {};
    }
    const std::vector<std::uint8_t> picture = userInterface_.previewPicture(id);
    return {reinterpret_cast<const char*>(picture.data()), static_cast<qsizetype>(picture.size())};
}

void BusFace::Reopen() {
    controller_.applicationShouldHandleReopen(false);
}

void BusFace::Quit() {
    // Returns first, so that the caller has its answer.
    QMetaObject::invokeMethod(qApp, "quit", Qt::QueuedConnection);
}

QVariantMap BusFace::snapshot() const {
    QVariantMap properties;
    const QMetaObject* meta = metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        properties.insert(QString::fromLatin1(meta->property(i).name()),
                          meta->property(i).read(this));
    }
    return properties;
}

void BusFace::announceSoon() {
    if (bus_ && !std::exchange(announcing_, true)) {
        QMetaObject::invokeMethod(
            this, [this] { announce(); }, Qt::QueuedConnection);
    }
}

void BusFace::announce() {
    announcing_ = false;
    QVariantMap current = snapshot();
    QVariantMap changed;
    for (auto property = current.cbegin(); property != current.cend(); ++property) {
        if (announced_.value(property.key()) != property.value()) {
            changed.insert(property.key(), property.value());
        }
    }
    if (changed.isEmpty()) {
        return;
    }
    announced_ = std::move(current);
    QDBusMessage signal = QDBusMessage::createSignal(
        QLatin1String(kObjectPath), QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("PropertiesChanged"));
    signal << QLatin1String(kNocturoInterface) << changed << QStringList();
    bus_->send(signal);
}

const Setting* BusFace::knownSetting(const QString& key) {
    const Setting* setting = settingNamed(key.toStdString());
    if (setting == nullptr) {
        refuse(translated("There is no setting \"%@\".", {key.toStdString()}));
    }
    return setting;
}

void BusFace::refuse(const std::string& sentence) {
    sendErrorReply(QLatin1String(kInvalidArgumentError), QString::fromStdString(sentence));
}

void BusFace::fail(const std::string& sentence) {
    sendErrorReply(QLatin1String(kFailedError), QString::fromStdString(sentence));
}

bool reopenRunningApplication(const QDBusConnection& bus) {
    const QDBusMessage answer = bus.call(
        QDBusMessage::createMethodCall(QLatin1String(kBusName), QLatin1String(kObjectPath),
                                       QLatin1String(kNocturoInterface), QStringLiteral("Reopen")),
        QDBus::Block, kReopenTimeoutMs);
    return answer.type() != QDBusMessage::ErrorMessage;
}

} // namespace nocturo
