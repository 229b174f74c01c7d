#include "program/forwarded_object.h"

#include "desktop/qt/session_bus.h"

namespace nocturo {

ForwardedObject::ForwardedObject(const Bus* bus, const char* path) : bus_(bus) {
    if (bus_ != nullptr) {
        sd_bus_slot* slot = nullptr;
        sd_bus_add_object(bus_->handle(), &slot, path, forward, this);
        object_.reset(slot);
    }
}

int ForwardedObject::forward(sd_bus_message* call, void* self, sd_bus_error* /*error*/) {
    auto& object = *static_cast<ForwardedObject*>(self);
    const auto owner = connectToSessionBus();
    if (!owner || sd_bus_message_is_method_call(call, nullptr, nullptr) <= 0) {
        return 0;
    }
    const BusMessage onward = object.bus_->newCall(
        owner->baseService().toUtf8().constData(), sd_bus_message_get_path(call),
        sd_bus_message_get_interface(call), sd_bus_message_get_member(call));
    sd_bus_message_copy(onward.get(), call, 1);
    const std::shared_ptr<sd_bus_message> asked(sd_bus_message_ref(call), sd_bus_message_unref);
    const std::uint64_t number = ++object.last_;
    object.pending_[number] =
        object.bus_->call(onward, [&object, asked, number](sd_bus_message* answer) {
            if (const sd_bus_error* failure = sd_bus_message_get_error(answer)) {
                sd_bus_reply_method_error(asked.get(), failure);
            } else {
                sd_bus_message* message = nullptr;
                sd_bus_message_new_method_return(asked.get(), &message);
                const BusMessage reply(message);
                sd_bus_message_copy(message, answer, 1);
                sd_bus_message_send(message);
            }
            object.pending_.erase(number);
        });
    return 1;
}

} // namespace nocturo
