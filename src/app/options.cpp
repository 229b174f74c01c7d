#include "app/options.h"

#include <string_view>

namespace nocturo {

namespace {

constexpr std::string_view kDisplayServices = "--display-services=";

constexpr std::string_view kHelp =
    R"(Usage: nocturo [--display-services=auto|randr|simulated[:N]] [FILE...]

Changes how whole screens look: inverted, overexposed, dimmed or lightened, in
the HDTV range or through a colour filter. Runs until it is told to quit, and
gives every display back then. Drive it with nocturoctl.

Options:
  --display-services=WHICH  where the displays come from:
                              auto           what this session offers (default)
                              randr          an X server
                              simulated[:N]  N displays (1 to 16, default 2) in
                                             memory, drawn into pictures
  --help                    show this text
  --version                 show the version

A FILE is an effect document (.nocturo) to open, by the Nocturo that runs if
there is one. Starting Nocturo a second time without one toggles the effect.
)";

} // namespace

Options parseOptions(const std::vector<std::string>& arguments) {
    RunOptions options;
    bool onlyDocuments = false;
    for (const std::string& argument : arguments) {
        if (onlyDocuments || !argument.starts_with('-')) {
            options.documents.push_back(argument);
            continue;
        }
        if (argument == "--") {
            onlyDocuments = true;
            continue;
        }
        if (argument == "--help" || argument == "-h") {
            return PrintAndExit{std::string(kHelp)};
        }
        if (argument == "--version") {
            return PrintAndExit{"nocturo " NOCTURO_VERSION "\n"};
        }
        if (!argument.starts_with(kDisplayServices)) {
            return UsageError{"There is no option \"" + argument + "\"; see nocturo --help."};
        }
        const auto choice =
            parseDisplayChoice(std::string_view(argument).substr(kDisplayServices.size()));
        if (!choice) {
            return UsageError{"--display-services takes auto, randr, simulated or simulated:N with "
                              "N from 1 to 16."};
        }
        options.displays = *choice;
    }
    return options;
}

} // namespace nocturo
