#pragma once

#include <array>
#include <cstddef>
#include <string>

#include <fuzzer/FuzzedDataProvider.h>
#include <systemd/sd-bus.h>

namespace nocturo::fuzz {

/// Whatever somebody on the bus may think of.
inline constexpr std::array kSignatures = {"b",      "i",    "u",    "x",       "d",       "s",
                                           "as",     "ax",   "ai",   "a{sv}",   "v",       "y",
                                           "aa{sv}", "a(i)", "(is)", "a(isvu)", "(ayas)v", "a{sas}",
                                           "a{ii}",  "ay",   "av",   "t",       "o",       "g"};

inline const char* anySignature(FuzzedDataProvider& data) {
    return data.PickValueInArray(kSignatures);
}

/// Appends values of these types, as invented as the data are.
inline void append(sd_bus_message* message, std::string signature, FuzzedDataProvider& data,
                   int depth = 0);

/// The first complete type of a signature.
inline std::string firstType(const std::string& signature) {
    std::size_t end = signature.find_first_not_of('a');
    int open = 0;
    do {
        open += signature[end] == '(' || signature[end] == '{' ? 1 : 0;
        open -= signature[end] == ')' || signature[end] == '}' ? 1 : 0;
        ++end;
    } while (open > 0);
    return signature.substr(0, end);
}

inline void appendBasic(sd_bus_message* message, char type, FuzzedDataProvider& data) {
    if (type == 's' || type == 'o' || type == 'g') {
        const std::string text = data.ConsumeRandomLengthString(64);
        if (sd_bus_message_append_basic(message, type, text.c_str()) < 0) {
            sd_bus_message_append_basic(message, type, type == 'o' ? "/" : "");
        }
        return;
    }
    std::array<std::uint64_t, 1> number{data.ConsumeIntegral<std::uint64_t>()};
    if (type == 'b') {
        number[0] &= 1U;
    }
    sd_bus_message_append_basic(message, type, number.data());
}

inline void appendContainer(sd_bus_message* message, char type, const std::string& contents,
                            std::size_t count, FuzzedDataProvider& data, int depth) {
    sd_bus_message_open_container(message, type, contents.c_str());
    for (std::size_t i = 0; i < count; ++i) {
        append(message, contents, data, depth + 1);
    }
    sd_bus_message_close_container(message);
}

inline void append(sd_bus_message* message, std::string signature, FuzzedDataProvider& data,
                   int depth) {
    while (!signature.empty()) {
        const std::string type = firstType(signature);
        signature.erase(0, type.size());
        if (type == "v") {
            appendContainer(message, 'v', depth > 5 ? "s" : anySignature(data), 1, data, depth);
        } else if (type[0] == 'a') {
            const bool isLong = data.ConsumeProbability<float>() > 0.995F;
            const auto count = data.ConsumeIntegralInRange<std::size_t>(0, isLong ? 1200 : 4);
            appendContainer(message, 'a', type.substr(1), count, data, depth);
        } else if (type[0] == '(' || type[0] == '{') {
            appendContainer(message, type[0] == '(' ? 'r' : 'e', type.substr(1, type.size() - 2), 1,
                            data, depth);
        } else {
            appendBasic(message, type[0], data);
        }
    }
}

} // namespace nocturo::fuzz
