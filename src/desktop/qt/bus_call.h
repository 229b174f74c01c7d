#pragma once

#include <QDBusConnection>
#include <QDBusMessage>

#include <functional>

class QObject;

namespace nocturo {

/// Sends a call without waiting and without starting the service that it goes to; `answered` gets
/// the reply or the error, from the event loop, unless `context` is destroyed before.
void callLater(const QDBusConnection& bus, QDBusMessage call, QObject* context,
               std::function<void(const QDBusMessage& answer)> answered);

/// A call that reads one property.
QDBusMessage propertyCall(const QString& service, const QString& path, const QString& interface,
                          const QString& property);

} // namespace nocturo
