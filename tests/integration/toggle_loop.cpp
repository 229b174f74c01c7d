// Toggles the running Nocturo as often as asked, over one connection. With "drag" it moves a
// setting to and fro instead, as a slider does.

#include "ctl/bus_client.h"
#include "ctl/failure.h"

#include <cstdlib>
#include <cstring>
#include <iostream>

int main(int argc, char* argv[]) {
    const bool drag = argc == 3 && std::strcmp(argv[2], "drag") == 0;
    if (argc != 2 && !drag) {
        return nocturo::kUsage;
    }
    try {
        nocturo::BusClient client;
        for (int left = std::atoi(argv[1]); left > 0; --left) {
            if (drag) {
                client.callSetSetting("NDDimEffectLevel", -0.01 * (left % 100));
            } else {
                client.call("Toggle");
            }
        }
    } catch (const nocturo::Failure& failure) {
        std::cerr << failure.sentence << '\n';
        return failure.exitStatus;
    }
    return nocturo::kSuccess;
}
