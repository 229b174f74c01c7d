#include "ctl/rules_verb.h"

#include "ctl/bus_client.h"
#include "ctl/failure.h"
#include "ctl/output.h"
#include "ctl/report.h"
#include "settings/rule_words.h"

#include <string>
#include <vector>

namespace nocturo {

namespace {

/// "program mpv Warm evening", with the look's title.
std::string shown(const Json& properties, const std::string& words) {
    const auto rule = ruleFromWords(words);
    return !rule || rule->look.empty()
               ? words
               : conditionText(*rule) + ' ' + titleOfLookNamed(properties, rule->look);
}

/// Why it holds now.
std::string reason(const Json& told) {
    const auto rule = ruleFromWords(told["rule"].get<std::string>());
    if (rule && rule->when == Rule::When::program) {
        return translated("%@ is in front", {rule->program});
    }
    if (rule && rule->when == Rule::When::game) {
        return translated("a game is running");
    }
    std::string screens;
    for (const Json& screen : told["screens"]) {
        const auto name = screen.get<std::string>();
        screens += screens.empty() ? name : translated(", %d", {name});
    }
    return translated("a window fills %@", {screens});
}

void printRules(const Json& properties, const Json& rules) {
    std::string text;
    int number = 0;
    for (const Json& told : rules) {
        text += "  " + std::to_string(++number) + "  " +
                shown(properties, told["rule"].get<std::string>());
        if (told["holds"].get<bool>()) {
            text += "  (" + reason(told) + ")";
        }
        const auto problem = told["problem"].get<std::string>();
        text += problem.empty() ? "\n" : "\n     " + problem + '\n';
    }
    if (text.empty()) {
        text = "  " + translated("(none)") + '\n';
    }
    if (!properties["settings"].value("UseRules", true)) {
        text += translated("The rules are not in use; nocturoctl rules on changes that.") + '\n';
    }
    print(text);
}

/// What a shell took the quotation marks of is given them again.
std::string ruleFrom(Arguments arguments) {
    std::vector<std::string> words(arguments.begin(), arguments.end());
    if (words.size() > 2 && words[0] == "program" && words[1].find(' ') != std::string::npos &&
        words[1].find('"') == std::string::npos) {
        words[1] = '"' + words[1] + '"';
    }
    return joined(words);
}

} // namespace

void runRules(Arguments arguments) {
    const bool asJson = !arguments.empty() && arguments.back() == "--json";
    const Arguments words = arguments.first(arguments.size() - (asJson ? 1 : 0));
    const std::string how = words.empty() ? "list" : words[0];
    if (how == "list") {
        expect(words.size() <= 1);
        const Json properties = BusClient().properties();
        const Json rules = properties.value("rules", Json::array());
        if (asJson) {
            print(rules.dump() + '\n');
        } else {
            printRules(properties, rules);
        }
    } else if (how == "on" || how == "off") {
        expect(arguments.size() == 1);
        BusClient client;
        client.callSetSetting("UseRules", how == "on");
        client.saveSettings();
    } else if (how == "add") {
        expect(words.size() > 1 && !asJson);
        BusClient().callAndSave("AddRule", ruleFrom(words.subspan(1)));
    } else if (how == "move") {
        expect(arguments.size() == 3);
        BusClient().callAndSave("MoveRule", indexFrom(arguments[1]), indexFrom(arguments[2]));
    } else {
        expect(how == "remove" && arguments.size() == 2);
        BusClient().callAndSave("RemoveRule", indexFrom(arguments[1]));
    }
}

} // namespace nocturo
