#include "bus/bus_values.h"

#include <QDBusArgument>
#include <QStringList>

#include <array>
#include <charconv>
#include <limits>
#include <string>

namespace nocturo {

namespace {

QVariant busArray(const PropertyArray& array) {
    if (!array.empty() && array.front().number()) {
        QList<qlonglong> numbers;
        for (const PropertyValue& element : array) {
            numbers.append(static_cast<qlonglong>(element.number().value_or(0.0)));
        }
        return QVariant::fromValue(numbers);
    }
    QStringList strings;
    for (const PropertyValue& element : array) {
        if (const auto* text = element.as<std::string>()) {
            strings.append(QString::fromStdString(*text));
        }
    }
    return strings;
}

PropertyArray propertyArray(const QStringList& strings) {
    PropertyArray array;
    for (const QString& string : strings) {
        array.emplace_back(string.toStdString());
    }
    return array;
}

// Arrays other than `as` arrive unread.
std::optional<PropertyValue> propertyArray(const QDBusArgument& argument) {
    if (argument.currentSignature() != QLatin1String("ax")) {
        return std::nullopt;
    }
    PropertyArray array;
    for (const qlonglong number : qdbus_cast<QList<qlonglong>>(argument)) {
        array.emplace_back(static_cast<std::int64_t>(number));
    }
    return array;
}

} // namespace

QVariant busValue(const PropertyValue& value) {
    if (const auto* boolean = value.as<bool>()) {
        return *boolean;
    }
    if (const auto* integer = value.as<std::int64_t>()) {
        return static_cast<qlonglong>(*integer);
    }
    if (const auto* real = value.as<double>()) {
        return shortestReal(static_cast<float>(*real));
    }
    if (const auto* text = value.as<std::string>()) {
        return QString::fromStdString(*text);
    }
    const auto* array = value.as<PropertyArray>();
    return array != nullptr ? busArray(*array) : QVariant(QStringList());
}

std::optional<PropertyValue> propertyValue(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::LongLong:
        return static_cast<std::int64_t>(value.toLongLong());
    case QMetaType::Double:
        return value.toDouble();
    case QMetaType::QStringList:
        return propertyArray(value.toStringList());
    default:
        break;
    }
    if (value.typeId() == qMetaTypeId<QDBusArgument>()) {
        return propertyArray(value.value<QDBusArgument>());
    }
    return std::nullopt;
}

double shortestReal(float value) {
    std::array<char, 32> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), value);
    double real = 0.0;
    std::from_chars(text.data(), written.ptr, real);
    return real;
}

} // namespace nocturo
