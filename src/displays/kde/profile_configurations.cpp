#include "displays/kde/profile_configurations.h"

#include "displays/kde/output_protocol.h"
#include "wayland/wayland_connection.h"

#include <utility>

namespace nocturo {

struct ProfileConfigurations::Events {
    static int take(const void* /*implementation*/, void* proxy, std::uint32_t event,
                    const wl_message* /*message*/, wl_argument* arguments) {
        auto* self = static_cast<ProfileConfigurations*>(
            wl_proxy_get_user_data(static_cast<wl_proxy*>(proxy)));
        if (event == kApplied) {
            self->applied();
        } else if (event == kFailed) {
            self->failed();
        } else if (event == kFailureReason) {
            self->reason_ = arguments[0].s != nullptr ? arguments[0].s : "";
        }
        return 0;
    }
};

ProfileConfigurations::ProfileConfigurations(WaylandConnection& compositor)
    : compositor_(compositor),
      management_(compositor.bind(kOutputManagementInterface, kManagementVersion)) {}

ProfileConfigurations::~ProfileConfigurations() {
    if (configuration_ != nullptr) {
        wl_proxy_destroy(configuration_);
    }
    wl_proxy_destroy(management_);
}

void ProfileConfigurations::apply(std::span<const Change> changes,
                                  std::function<void(Result<void>)> done) {
    const std::uint32_t version = wl_proxy_get_version(management_);
    done_ = std::move(done);
    reason_.clear();
    configuration_ = wl_proxy_marshal_flags(management_, kCreateConfiguration,
                                            &kOutputConfigurationInterface, version, 0, nullptr);
    wl_proxy_add_dispatcher(configuration_, Events::take, nullptr, this);
    for (const auto& [device, setting] : changes) {
        wl_proxy_marshal_flags(configuration_, kSetProfilePath, nullptr, version, 0, device->proxy,
                               setting.path.c_str());
        if (version >= kManagementWithSources) {
            wl_proxy_marshal_flags(configuration_, kSetProfileSource, nullptr, version, 0,
                                   device->proxy, static_cast<std::uint32_t>(setting.source));
        }
    }
    wl_proxy_marshal_flags(configuration_, kApply, nullptr, version, 0);
    compositor_.flush();
}

void ProfileConfigurations::applied() {
    compositor_.afterAnswers([this] { end({}); });
}

void ProfileConfigurations::failed() {
    end(nocturo::failed(reason_.empty() ? "it gives no reason" : reason_));
}

void ProfileConfigurations::end(const Result<void>& result) {
    wl_proxy_marshal_flags(std::exchange(configuration_, nullptr), kDestroyConfiguration, nullptr,
                           wl_proxy_get_version(management_), WL_MARSHAL_FLAG_DESTROY);
    std::exchange(done_, nullptr)(result);
}

} // namespace nocturo
