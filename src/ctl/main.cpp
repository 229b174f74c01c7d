#include "base/texts/translated.h"
#include "base/texts/users_language.h"
#include "ctl/answer_check.h"
#include "ctl/commands.h"
#include "ctl/failure.h"
#include "ctl/output.h"

#include <algorithm>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace nocturo {

namespace {

constexpr std::size_t kUsageColumn = 42;

std::string call(const Command& command) {
    return std::string(command.verb) + (command.usage.empty() ? "" : " ") +
           std::string(command.usage);
}

std::string whereToReadOn(std::string_view verb) {
    return translated("nocturoctl %@ --help tells more.", {std::string(verb)});
}

void printHelp() {
    std::string text = translated("Usage: %@", {"nocturoctl VERB [ARGUMENT...]"}) + "\n\n" +
                       translated("Drives the Nocturo that runs in this session.") + "\n\n";
    for (const Command& command : commands()) {
        std::string line = "  " + call(command);
        if (line.size() + 2 > kUsageColumn) {
            text += line + '\n';
            line.clear();
        }
        line.resize(kUsageColumn, ' ');
        text += line + command.summary.translated() + '\n';
    }
    print(text + '\n' + whereToReadOn("VERB") + "\n\n" +
          translated("With --keep, colors that leave every screen hard to read stay. Without "
                     "it they go back\nafter ten seconds, unless somebody keeps them.") +
          "\n\n" +
          translated("Exit status: 0 done, 1 failed, 2 not understood, 3 Nocturo is not "
                     "running.") +
          '\n');
}

std::string usage(const Command& command) {
    return translated("Usage: %@", {"nocturoctl " + call(command)});
}

void printHelp(const Command& command) {
    std::string text = usage(command) + "\n\n" + command.summary.translated() + '\n';
    if (!command.details.isEmpty()) {
        text += '\n' + command.details.translated() + '\n';
    }
    print(text);
}

int tell(const Failure& failure) {
    std::cerr << "nocturoctl: " << visible(failure.sentence) << '\n';
    return failure.exitStatus;
}

int run(const std::vector<std::string>& arguments) {
    if (arguments.empty()) {
        return tell({kUsage, translated("Say what to do; nocturoctl --help lists the verbs.")});
    }
    if (arguments[0] == "--help" || arguments[0] == "-h") {
        printHelp();
        return kSuccess;
    }
    if (arguments[0] == "help") {
        return run({arguments.size() > 1 ? arguments[1] : "--help", "--help"});
    }
    if (arguments[0] == "--version") {
        print("nocturoctl " NOCTURO_VERSION "\n");
        return kSuccess;
    }
    const auto all = commands();
    const auto command = std::find_if(
        all.begin(), all.end(), [&](const Command& each) { return each.verb == arguments[0]; });
    if (command == all.end()) {
        return tell({kUsage, translated("There is no verb \"%@\"; nocturoctl --help lists them.",
                                        {arguments[0]})});
    }
    const Arguments rest = Arguments(arguments).subspan(1);
    // What stands behind "pause while" is said to that command.
    const auto end =
        command->verb == "pause" ? std::find(rest.begin(), rest.end(), "while") : rest.end();
    if (std::find(rest.begin(), end, "--help") != end) {
        printHelp(*command);
        return kSuccess;
    }
    std::vector<std::string> own(rest.begin(), rest.end());
    const bool keep = command->changesColors && std::erase(own, "--keep") > 0;
    try {
        command->run(own);
    } catch (const NotSaved&) {
        if (keep) {
            keepColors(); // they have changed all the same
        }
        throw;
    } catch (const Failure& failure) {
        if (failure.sentence.empty()) {
            return tell({kUsage, usage(*command) + "; " + whereToReadOn(command->verb)});
        }
        throw;
    }
    if (keep) {
        keepColors();
    }
    return kSuccess;
}

/// What settings hold is of any type, and nobody has looked at all of it before it is used.
int runUnderstanding(const std::vector<std::string>& arguments) {
    try {
        return run(arguments);
    } catch (const Json::exception&) {
        failBecauseNotUnderstood();
    }
}

} // namespace

} // namespace nocturo

int main(int argc, char* argv[]) {
    try {
        nocturo::setLanguageOfTexts(nocturo::usersLanguage());
        return nocturo::runUnderstanding(std::vector<std::string>(argv + 1, argv + argc));
    } catch (const nocturo::Failure& failure) {
        return nocturo::tell(failure);
    }
}
