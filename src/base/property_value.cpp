#include "base/property_value.h"

namespace nocturo {

std::optional<double> PropertyValue::number() const {
    if (const auto* integer = as<std::int64_t>()) {
        return static_cast<double>(*integer);
    }
    if (const auto* real = as<double>()) {
        return *real;
    }
    return std::nullopt;
}

bool PropertyValue::operator==(const PropertyValue& other) const {
    return static_cast<const variant&>(*this) == static_cast<const variant&>(other);
}

} // namespace nocturo
