#pragma once

#include "base/property_value.h"

#include <QIcon>
#include <QString>

#include <string_view>

namespace nocturo {

/// What a program knows about itself: a dictionary of well-known keys, and where it lies.
class BundleInformation {
  public:
    BundleInformation(PropertyDictionary values, QString path);

    /// This program's own, compiled in. Needs the application object.
    static const BundleInformation& mainBundle();

    /// The value of `key` or null.
    const PropertyValue* objectForKey(std::string_view key) const;

    /// The value of `key` where it is a string, or else `otherwise`.
    QString stringForKey(std::string_view key, const QString& otherwise = {}) const;

    const QString& path() const { return path_; }

  private:
    PropertyDictionary values_;
    QString path_;
};

/// The name for users; where the information has none, the name of the program's file.
QString applicationName(const BundleInformation& bundle);

/// "4.0", or "4.0 (300)" where the bundle's version is another one than the short version. What is
/// missing reads "(null)".
QString versionText(const BundleInformation& bundle);

/// The icon of the user's icon theme, or else the one compiled in. Needs the application object.
QIcon applicationIcon();

} // namespace nocturo
