// What callers on the bus do with the effects, looks and affected displays, and see of them.

#include "app/app_controller.h"
#include "app/user_interface.h"
#include "automation/look_names.h"
#include "base/texts/translated.h"
#include "bus/bus_face.h"
#include "bus/bus_object.h"
#include "displays/affected_screen_set.h"
#include "displays/display_functions.h"
#include "documents/chosen_look.h"
#include "documents/looks.h"
#include "effects/color_filter_effect.h"
#include "effects/color_temperature.h"
#include "effects/effect_choices.h"
#include "effects/group_effect.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"
#include "settings/settings_table.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace nocturo {

namespace {

bool isOnline(CGDirectDisplayID display) {
    DisplayServices* services = displayServices();
    const auto* online = services != nullptr ? services->onlineDisplays() : nullptr;
    return online != nullptr && std::any_of(online->begin(), online->end(),
                                            [&](const auto& each) { return each.id == display; });
}

std::optional<std::string> problemWithEffects(const std::vector<std::string>& names) {
    return problemWith(*settingNamed(NDGroupEffect::kName),
                       PropertyArray(names.begin(), names.end()));
}

BusAnswer answerOf(Result<void> done) {
    if (!done) {
        return failure(std::move(done.error().text));
    }
    return {};
}

} // namespace

BusAnswer BusFace::addEffects(const std::vector<std::string>& names) {
    if (auto problem = problemWithEffects(names)) {
        return refusal(*std::move(problem));
    }
    const DefaultsStore::Batch oneChange(defaults_);
    for (const std::string& name : names) {
        chooseEffect(name);
    }
    return {};
}

BusAnswer BusFace::removeEffects(const std::vector<std::string>& names) {
    const DefaultsStore::Batch oneChange(defaults_);
    for (const std::string& name : names) {
        NDGroupEffect::effect().removeEffect(name);
    }
    return {};
}

BusAnswer BusFace::toggleEffects(const std::vector<std::string>& names) {
    if (auto problem = problemWithEffects(names)) {
        return refusal(*std::move(problem));
    }
    const DefaultsStore::Batch oneChange(defaults_);
    for (const std::string& name : names) {
        if (NDGroupEffect::effect().containsEffect(name)) {
            NDGroupEffect::effect().removeEffect(name);
        } else {
            chooseEffect(name);
        }
    }
    return {};
}

BusAnswer BusFace::setEffects(const std::vector<std::string>& names) {
    if (auto problem = problemWithEffects(names)) {
        return refusal(*std::move(problem));
    }
    const DefaultsStore::Batch oneChange(defaults_);
    const bool hadFilter = NDGroupEffect::effect().containsEffect(NDColorFilterEffect::kName);
    if (!hadFilter && std::ranges::find(names, NDColorFilterEffect::kName) != names.end()) {
        offerGentleTint();
    }
    defaults_.setObject(PropertyArray(names.begin(), names.end()), NDGroupEffect::kName);
    return {};
}

BusAnswer BusFace::setTemperature(std::uint32_t kelvin) {
    if (kelvin < kLowestTemperature || kelvin > kHighestTemperature) {
        return refusal(translated("A temperature is from 1000 to 25000 K."));
    }
    setFilterTemperature(kelvin);
    return {};
}

BusAnswer BusFace::stepTemperature(std::int32_t kelvin) {
    if (!stepFilterTemperature(kelvin)) {
        return failure(translated("The color filter has a hue and a vividness that are no "
                                  "temperature."));
    }
    return {};
}

BusAnswer BusFace::setDim(double level) {
    nocturo::setDim(level);
    return {};
}

BusAnswer BusFace::stepDim(double by) {
    nocturo::stepDim(by);
    return {};
}

BusAnswer BusFace::setTint(double hue, double vividness) {
    nocturo::setTint(hue, vividness);
    return {};
}

BusAnswer BusFace::changeTint(double hue, bool byHue, double vividness, bool byVividness) {
    nocturo::setTint(hue + (byHue ? NDColorFilterEffect::hue() : 0.0),
                     vividness + (byVividness ? NDColorFilterEffect::vividness() : 0.0));
    return {};
}

BusAnswer BusFace::stepSetting(const std::string& key, double by) {
    const Setting* setting = settingNamed(key);
    if (setting == nullptr || setting->type != SettingType::real) {
        return refusal(translated("\"%@\" is no setting that goes in steps.", {key}));
    }
    nocturo::stepSetting(key, by);
    return {};
}

BusAnswer BusFace::toggleScreen(std::uint32_t display) {
    chooseAffectedScreen(defaults_, static_cast<std::int32_t>(display));
    return {};
}

BusAnswer BusFace::affectAllScreens() {
    chooseAffectedScreen(defaults_, 0);
    return {};
}

BusAnswer BusFace::addScreens(const std::vector<std::int64_t>& displays) {
    addAffectedScreens(defaults_, displays);
    return {};
}

BusAnswer BusFace::removeScreens(const std::vector<std::int64_t>& displays) {
    std::vector<std::int64_t> online;
    const auto* infos =
        displayServices() != nullptr ? displayServices()->onlineDisplays() : nullptr;
    for (std::size_t i = 0; infos != nullptr && i < infos->size() && i < kZQMaxDisplays; ++i) {
        online.push_back((*infos)[i].id);
    }
    if (!removeAffectedScreens(defaults_, displays, online)) {
        return refusal(translated("One display has to stay, as a choice of none means all; "
                                  "nocturoctl off switches the effect off."));
    }
    return {};
}

std::string BusFace::caller() const {
    const char* sender = sd_bus_message_get_sender(sd_bus_get_current_message(bus_->handle()));
    return sender != nullptr ? sender : "";
}

BusAnswer BusFace::fadeNext(double seconds) {
    if (auto problem = problemWithTyped(*settingNamed(kFadeSeconds.key), seconds)) {
        return refusal(*std::move(problem));
    }
    nextFade_ = {caller(),
                 std::chrono::duration_cast<Fades::Length>(std::chrono::duration<double>(seconds))};
    return {};
}

Fades::Change BusFace::wishedChange() {
    if (nextFade_.first.empty() || nextFade_.first != caller()) {
        return controller_.changeOver(controller_.lengthOfFades());
    }
    const Fades::Length length = std::exchange(nextFade_, {}).second;
    const bool isAtOnce = length == Fades::Length::zero();
    return {controller_.fades(), length, isAtOnce ? Fades::Former::ends : Fades::Former::goesOn};
}

BusAnswer BusFace::applyLook(const std::string& name) {
    const auto change = wishedChange();
    return answerOf(chosenLook_.apply(name));
}

BusAnswer BusFace::applyNextLook() {
    const auto change = wishedChange();
    return answerOf(chosenLook_.applyNext());
}

BusAnswer BusFace::applyPreviousLook() {
    const auto change = wishedChange();
    return answerOf(chosenLook_.applyPrevious());
}

BusAnswer BusFace::goBackFromLook() {
    const auto change = wishedChange();
    return answerOf(chosenLook_.goBack());
}

BusAnswer BusFace::saveLook(const std::string& name) {
    return answerOf(chosenLook_.save(name));
}

BusAnswer BusFace::renameLook(const std::string& name, const std::string& to) {
    return answerOf(nocturo::renameLook(defaults_, chosenLook_, name, to));
}

BusAnswer BusFace::deleteLook(const std::string& name) {
    return answerOf(chosenLook_.looks().remove(name));
}

BusAnswer BusFace::moveLook(const std::string& name, std::uint32_t place) {
    return answerOf(chosenLook_.looks().move(name, place));
}

int BusFace::renderPreview(sd_bus_message* call, void* self, sd_bus_error* error) {
    std::uint32_t display = 0;
    if (!readArgument(call, display) || !isOnline(display)) {
        const std::string sentence = inLanguageOfCaller(call, [display] {
            return translated("There is no display with the identifier %d.",
                              {std::to_string(display)});
        });
        return sd_bus_error_set(error, kInvalidArgumentError, sentence.c_str());
    }
    UserInterface& windows = static_cast<BusFace*>(self)->userInterface_;
    if (!windows.whyNoWindows().empty()) {
        const auto why = inLanguageOfCaller(call, [&windows] { return windows.whyNoWindows(); });
        return sd_bus_error_set(error, kFailedError, why.c_str());
    }
    const auto picture = windows.previewPicture(display);
    sd_bus_message* message = nullptr;
    sd_bus_message_new_method_return(call, &message);
    const BusMessage reply(message);
    sd_bus_message_append_array(reply.get(), 'y', picture.data(), picture.size());
    return sd_bus_message_send(reply.get());
}

} // namespace nocturo
