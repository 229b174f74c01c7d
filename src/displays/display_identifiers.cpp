#include "displays/display_identifiers.h"

#include "displays/edid.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace nocturo {

namespace {

constexpr std::size_t kProductOffset = 8; // manufacturer, product and serial number, 8 bytes
constexpr std::size_t kSerialNumberOffset = 12;

std::string bytes(const std::vector<std::uint8_t>& edid, std::size_t offset, std::size_t count) {
    return {reinterpret_cast<const char*>(edid.data()) + offset, count};
}

// Makers that give no serials leave placeholders, equal in every unit.
bool isRealSerialNumber(std::uint32_t number) {
    return number != 0 && number != 0x01010101 && number != 0xFFFFFFFF;
}

std::string serialText(const std::vector<std::uint8_t>& edid) {
    for (const std::string& text : edidTexts(edid, EdidText::serial)) {
        if (text.find_first_not_of(" 0") != std::string::npos) {
            return text;
        }
    }
    return {};
}

// What tells this monitor from every other one.
std::string identityOf(const Head& head) {
    if (!isEdid(head.edid)) {
        return "connector " + head.connector;
    }
    std::uint32_t serialNumber = 0;
    std::memcpy(&serialNumber, head.edid.data() + kSerialNumberOffset, sizeof serialNumber);
    const std::string text = serialText(head.edid);
    if (isRealSerialNumber(serialNumber) || !text.empty()) {
        return "serial " + bytes(head.edid, kProductOffset, 8) + text;
    }
    return "model " + bytes(head.edid, 0, kEdidBlockSize) + head.connector;
}

CGDirectDisplayID folded(std::uint32_t number) {
    const std::uint32_t id = number & 0x7FFFFFFFU;
    return id != 0 ? id : 1;
}

// FNV-1a: the numbers are stored in settings, so they must not depend on a library's version.
CGDirectDisplayID hashed(const std::string& identity) {
    std::uint32_t hash = 2166136261U;
    for (const char character : identity) {
        hash = (hash ^ static_cast<std::uint8_t>(character)) * 16777619U;
    }
    return folded(hash ^ (hash >> 31));
}

} // namespace

std::vector<CGDirectDisplayID> DisplayIdentifiers::identifiersFor(const std::vector<Head>& heads) {
    std::vector<std::string> identities;
    std::vector<CGDirectDisplayID> ids(heads.size(), 0);
    const auto isUsed = [&](CGDirectDisplayID id) {
        return std::find(ids.begin(), ids.end(), id) != ids.end();
    };
    // Those that are where they were come first: a newcomer must not take the number of a monitor
    // that stays.
    for (std::size_t i = 0; i < heads.size(); ++i) {
        identities.push_back(identityOf(heads[i]));
        const auto known = assigned_.find({identities[i], heads[i].connector});
        if (known != assigned_.end() && !isUsed(known->second)) {
            ids[i] = known->second;
        }
    }
    for (std::size_t i = 0; i < heads.size(); ++i) {
        if (ids[i] != 0) {
            continue;
        }
        CGDirectDisplayID id = hashed(identities[i]);
        while (isUsed(id) || isTakenByAnother(id, identities[i])) {
            id = folded(id + 1);
        }
        ids[i] = id;
        assigned_[{identities[i], heads[i].connector}] = id;
    }
    return ids;
}

bool DisplayIdentifiers::isTakenByAnother(CGDirectDisplayID id, const std::string& identity) const {
    return std::any_of(assigned_.begin(), assigned_.end(), [&](const auto& entry) {
        return entry.second == id && entry.first.identity != identity;
    });
}

} // namespace nocturo
