#include "displays/display_functions.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace nocturo {

namespace {

using Registration = std::pair<CGDisplayReconfigurationCallBack, void*>;

DisplayServices* chosenServices = nullptr;

std::vector<Registration>& registrations() {
    static std::vector<Registration> all;
    return all;
}

bool isRegistered(const Registration& registration) {
    const auto& all = registrations();
    return std::find(all.begin(), all.end(), registration) != all.end();
}

bool meet(const DisplayRect& a, const DisplayRect& b) {
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height &&
           b.y < a.y + a.height;
}

template <typename Predicate>
CGError listDisplays(std::uint32_t maxDisplays, CGDirectDisplayID* displays, std::uint32_t* count,
                     Predicate wanted) {
    const auto* online = chosenServices != nullptr ? chosenServices->onlineDisplays() : nullptr;
    if (online == nullptr) {
        return kCGErrorFailure;
    }
    *count = 0;
    for (const DisplayInfo& info : *online) {
        if (*count < maxDisplays && wanted(info)) {
            displays[(*count)++] = info.id;
        }
    }
    return kCGErrorSuccess;
}

} // namespace

void setDisplayServices(DisplayServices* services) {
    chosenServices = services;
}

DisplayServices* displayServices() {
    return chosenServices;
}

CGError CGGetOnlineDisplayList(std::uint32_t maxDisplays, CGDirectDisplayID* displays,
                               std::uint32_t* count) {
    return listDisplays(maxDisplays, displays, count, [](const DisplayInfo&) { return true; });
}

CGError CGGetActiveDisplayList(std::uint32_t maxDisplays, CGDirectDisplayID* displays,
                               std::uint32_t* count) {
    return CGGetOnlineDisplayList(maxDisplays, displays, count);
}

CGError CGGetDisplaysWithRect(const DisplayRect& rect, std::uint32_t maxDisplays,
                              CGDirectDisplayID* displays, std::uint32_t* count) {
    return listDisplays(maxDisplays, displays, count,
                        [&](const DisplayInfo& info) { return meet(info.bounds, rect); });
}

CGDirectDisplayID CGMainDisplayID() {
    CGDirectDisplayID mainDisplay = 0;
    std::uint32_t count = 0;
    listDisplays(1, &mainDisplay, &count, [](const DisplayInfo& info) { return info.main; });
    return mainDisplay;
}

CGError CGGetDisplayTransferByTable(CGDirectDisplayID display, std::uint32_t capacity,
                                    float* redTable, float* greenTable, float* blueTable,
                                    std::uint32_t* count) {
    const bool read = chosenServices != nullptr &&
                      chosenServices->readTransferTable(display, capacity, redTable, greenTable,
                                                        blueTable, *count);
    return read ? kCGErrorSuccess : kCGErrorFailure;
}

CGError CGSetDisplayTransferByTable(CGDirectDisplayID display, std::uint32_t count,
                                    const float* redTable, const float* greenTable,
                                    const float* blueTable) {
    const bool written =
        chosenServices != nullptr &&
        chosenServices->writeTransferTable(display, count, redTable, greenTable, blueTable);
    return written ? kCGErrorSuccess : kCGErrorFailure;
}

void CGDisplayRestoreColorSyncSettings() {
    if (chosenServices != nullptr) {
        chosenServices->restoreSystemColors();
    }
}

CGError CGDisplayRegisterReconfigurationCallback(CGDisplayReconfigurationCallBack callback,
                                                 void* userInfo) {
    if (callback == nullptr) {
        return kCGErrorFailure;
    }
    if (!isRegistered({callback, userInfo})) {
        registrations().emplace_back(callback, userInfo);
    }
    return kCGErrorSuccess;
}

CGError CGDisplayRemoveReconfigurationCallback(CGDisplayReconfigurationCallBack callback,
                                               void* userInfo) {
    return std::erase(registrations(), Registration(callback, userInfo)) > 0 ? kCGErrorSuccess
                                                                             : kCGErrorFailure;
}

void callReconfigurationCallbacks(const DisplayChanges& changes) {
    const std::vector<Registration> all = registrations();
    for (const CGDirectDisplayID display : changes.modeChanged) {
        for (const Registration& registration : all) {
            if (isRegistered(registration)) {
                registration.first(display, kCGDisplaySetModeFlag, registration.second);
            }
        }
    }
}

} // namespace nocturo
