#pragma once

#include "base/result.h"
#include "bus/bus_names.h"
#include "bus/bus_values.h"
#include "bus/callers_language.h"

#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

namespace nocturo {

/// Why a call was not carried out; its sentence goes to the caller.
struct BusFailure {
    const char* errorName = kFailedError;
    std::string sentence;
};

/// What carrying out a call comes to.
using BusAnswer = Result<void, BusFailure>;

inline tl::unexpected<BusFailure> failure(std::string sentence) {
    return tl::unexpected(BusFailure{kFailedError, std::move(sentence)});
}

/// The same for arguments that cannot be taken.
inline tl::unexpected<BusFailure> refusal(std::string sentence) {
    return tl::unexpected(BusFailure{kInvalidArgumentError, std::move(sentence)});
}

namespace detail {

template <auto Method, bool whenReady>
struct Served;

template <typename Object, typename... Arguments, BusAnswer (Object::*Method)(Arguments...),
          bool whenReady>
struct Served<Method, whenReady> {
    static int call(sd_bus_message* call, void* object, sd_bus_error* error) {
        std::tuple<std::decay_t<Arguments>...> arguments;
        if (!readArguments(call, arguments)) {
            return sd_bus_error_set(error, SD_BUS_ERROR_INVALID_ARGS, nullptr);
        }
        BusAnswer answer = carryOut(*static_cast<Object*>(object), arguments);
        if (!answer) { // what fails changes nothing, so it is tried again to be told in other words
            answer = inLanguageOfCaller(
                call, [&] { return carryOut(*static_cast<Object*>(object), arguments); });
        }
        if (!answer) {
            return sd_bus_error_set(error, answer.error().errorName,
                                    answer.error().sentence.c_str());
        }
        return sd_bus_reply_method_return(call, nullptr);
    }

    static BusAnswer carryOut(Object& self, std::tuple<std::decay_t<Arguments>...>& arguments) {
        BusAnswer answer = whenReady ? self.whetherReady() : BusAnswer();
        if (answer) {
            answer =
                std::apply([&self](auto&... each) { return (self.*Method)(each...); }, arguments);
        }
        return answer;
    }
};

} // namespace detail

/// A handler for sd-bus that calls `Method` of the object with the call's arguments and answers
/// with nothing, or with what the method says went wrong, in the caller's language. A method that
/// fails is called twice and must have changed nothing. Arguments that the method does not take are
/// left alone.
template <auto Method>
inline constexpr sd_bus_message_handler_t kServe = detail::Served<Method, false>::call;

/// The same, while whetherReady() of the object says nothing against it.
template <auto Method>
inline constexpr sd_bus_message_handler_t kServeWhenReady = detail::Served<Method, true>::call;

} // namespace nocturo
