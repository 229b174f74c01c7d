#include "desktop/qt/bundle_information.h"

#include "desktop/qt/localized.h"
#include "settings/property_lists/property_list.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <utility>

// A static library's resources are dropped by the linker unless they are asked for by name, which
// must be done outside of any namespace.
static void keepResources() {
    Q_INIT_RESOURCE(bundle);
}

namespace nocturo {

namespace {

/// Versions are strings; somebody who writes one by hand easily writes a number.
QString description(const PropertyValue* value) {
    if (value == nullptr) {
        return QStringLiteral("(null)");
    }
    if (const auto* text = value->as<std::string>()) {
        return QString::fromStdString(*text);
    }
    if (const auto* boolean = value->as<bool>()) {
        return *boolean ? QStringLiteral("1") : QStringLiteral("0");
    }
    const auto number = value->number();
    return number ? QString::number(*number, 'g', 16) : QString();
}

} // namespace

BundleInformation::BundleInformation(PropertyDictionary values, QString path)
    : values_(std::move(values)), path_(std::move(path)) {}

const BundleInformation& BundleInformation::mainBundle() {
    static const BundleInformation bundle = [] {
        keepResources();
        QFile list(QStringLiteral(":/bundle/Info.plist"));
        const QByteArray xml = list.open(QIODevice::ReadOnly) ? list.readAll() : QByteArray();
        return BundleInformation(
            parsePropertyList(xml.toStdString()).value_or(PropertyDictionary()),
            QCoreApplication::applicationFilePath());
    }();
    return bundle;
}

const PropertyValue* BundleInformation::objectForKey(std::string_view key) const {
    const auto entry = values_.find(key);
    return entry != values_.end() ? &entry->second : nullptr;
}

QString BundleInformation::stringForKey(std::string_view key, const QString& otherwise) const {
    const PropertyValue* value = objectForKey(key);
    const auto* text = value != nullptr ? value->as<std::string>() : nullptr;
    return text != nullptr ? QString::fromStdString(*text) : otherwise;
}

QString applicationName(const BundleInformation& bundle) {
    return bundle.stringForKey("CFBundleName", QFileInfo(bundle.path()).fileName());
}

QString versionText(const BundleInformation& bundle) {
    const PropertyValue* shortVersion = bundle.objectForKey("CFBundleShortVersionString");
    QString shortText = description(shortVersion);
    const QString bundleText = description(bundle.objectForKey("CFBundleVersion"));
    if (shortVersion != nullptr && bundleText == shortText) {
        return shortText;
    }
    return filled(localized("%@ (%@)"), {shortText, bundleText});
}

QIcon applicationIcon() {
    keepResources();
    QIcon compiledIn;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        compiledIn.addFile(QStringLiteral(":/bundle/icon/%1").arg(size), QSize(size, size));
    }
    return QIcon::fromTheme(QStringLiteral("org.nocturo.Nocturo"), compiledIn);
}

} // namespace nocturo
