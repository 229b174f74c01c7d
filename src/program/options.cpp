#include "program/options.h"

#include "base/texts/translated.h"

#include <cstddef>
#include <string_view>

namespace nocturo {

namespace {

constexpr std::string_view kDisplayServices = "--display-services=";

std::string line(std::string left, std::size_t column, const std::string& text) {
    left.resize(column, ' ');
    return left + text + '\n';
}

std::string helpText() {
    constexpr std::size_t kMeaning = 28;
    constexpr std::size_t kMeaningOfChoice = 45;
    const std::string indent(kMeaning + 2, ' ');
    return translated("Usage: %@", {"nocturo [--off] [--at-login] "
                                    "[--display-services=auto|randr|wlr|gnome|kde|simulated[:N]] "
                                    "[FILE...]"}) +
           "\n\n" +
           translated("Changes how whole screens look: inverted, overexposed, dimmed or lightened, "
                      "in\nthe HDTV range or through a color filter. Runs until it is told to "
                      "quit, and\ngives every display back then. Drive it with nocturoctl.") +
           "\n\n" + translated("Options:") + '\n' +
           line("  --display-services=WHICH", kMeaning,
                translated("where the displays come from:")) +
           line(indent + "auto", kMeaningOfChoice,
                translated("what this session offers (default)")) +
           line(indent + "randr", kMeaningOfChoice, translated("an X server")) +
           line(indent + "wlr", kMeaningOfChoice, translated("a Wayland compositor like sway")) +
           line(indent + "gnome", kMeaningOfChoice, translated("GNOME or Cinnamon")) +
           line(indent + "kde", kMeaningOfChoice, translated("KDE Plasma 6")) +
           line(indent + "simulated[:N]", kMeaningOfChoice,
                translated("N displays, 1 to 16 (default 2),")) +
           line("", kMeaningOfChoice, translated("in memory, drawn into pictures")) +
           line("  --off", kMeaning, translated("start with the effect off")) +
           line("  --at-login", kMeaning, translated("start with the session, asking nothing")) +
           line("  --help", kMeaning, translated("show this text")) +
           line("  --version", kMeaning, translated("show the version")) + '\n' +
           translated("A FILE is an effect document (.nocturo) to open, by the Nocturo that runs "
                      "if\nthere is one. Starting Nocturo a second time without one toggles the "
                      "effect.") +
           '\n';
}

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
            return PrintAndExit{helpText()};
        }
        if (argument == "--version") {
            return PrintAndExit{"nocturo " NOCTURO_VERSION "\n"};
        }
        if (argument == "--at-login") {
            options.atLogin = true;
            continue;
        }
        if (argument == "--off") {
            options.switchedOff = true;
            continue;
        }
        if (!argument.starts_with(kDisplayServices)) {
            return UsageError{
                translated("There is no option \"%@\"; see nocturo --help.", {argument})};
        }
        const auto choice =
            parseDisplayChoice(std::string_view(argument).substr(kDisplayServices.size()));
        if (!choice) {
            return UsageError{
                translated("--display-services takes %@ or simulated:N with N from 1 to 16.",
                           {"auto, randr, wlr, gnome, kde, simulated"})};
        }
        options.displays = *choice;
    }
    return options;
}

} // namespace nocturo
