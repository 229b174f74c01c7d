// Toggles the running Nocturo as often as asked, over one connection.

#include "control/nocturoctl/bus_client.h"
#include "control/nocturoctl/failure.h"

#include <cstdlib>
#include <iostream>

int main(int argc, char* argv[]) {
    if (argc != 2) {
        return nocturo::kUsage;
    }
    try {
        nocturo::BusClient client;
        for (int left = std::atoi(argv[1]); left > 0; --left) {
            client.call("Toggle");
        }
    } catch (const nocturo::Failure& failure) {
        std::cerr << failure.sentence << '\n';
        return failure.exitStatus;
    }
    return nocturo::kSuccess;
}
