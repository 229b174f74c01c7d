// The verbs that go on printing. What is to be printed next is made only when all before has been
// read: changes that come meanwhile are told as one, so a reader that is slow, or gone, costs
// nothing.

#include "ctl/followers.h"

#include "base/texts/translated.h"
#include "ctl/bar_line.h"
#include "ctl/bus_client.h"
#include "ctl/failure.h"
#include "ctl/output.h"
#include "ctl/report.h"

#include <iostream>
#include <optional>
#include <utility>

namespace nocturo {

namespace {

class Watcher : public Follower {
  public:
    void start(const Json& properties) override { known_ = properties; }
    void change(const Json& properties) override { known_.update(properties); }
    bool end() override { return false; }

    std::string next() override {
        Json line = told_.empty() ? statusObject(known_) : changeObject(differences());
        told_ = known_;
        return line.empty() ? std::string() : line.dump() + '\n';
    }

  private:
    // Settings arrive whole with every change; only those that differ are told.
    Json differences() const {
        Json changed = Json::object();
        for (const auto& [name, value] : known_.items()) {
            if (told_.contains(name) && told_[name] == value) {
                continue;
            }
            if (name != "settings") {
                changed[name] = value;
                continue;
            }
            for (const auto& [key, setting] : value.items()) {
                if (told_[name].value(key, Json()) != setting) {
                    changed[name][key] = setting;
                }
            }
        }
        return changed;
    }

    Json known_ = Json::object();
    Json told_ = Json::object();
};

class BarFollower : public Follower {
  public:
    explicit BarFollower(BarLine line) : line_(line) {}

    void start(const Json& properties) override { known_ = properties; }
    void change(const Json& properties) override { known_.update(properties); }

    bool end() override {
        known_ = nullptr;
        return true;
    }

    std::string next() override {
        std::string line = line_(known_);
        return std::exchange(told_, line) != line ? line : std::string();
    }

  private:
    BarLine line_;
    Json known_; // null while Nocturo does not run
    std::string told_;
};

} // namespace

void runWatch(std::span<const std::string> arguments) {
    expect(arguments.empty());
    Watcher watcher;
    if (BusClient().watch(watcher)) {
        std::cerr << "nocturoctl: " << translated("Nocturo has ended.") << '\n';
    }
}

void runBar(std::span<const std::string> arguments) {
    const bool follows = arguments.size() == 2 && arguments[1] == "--follow";
    expect(arguments.size() == 1 || follows);
    const BarLine line = barLineNamed(arguments[0]);
    if (follows) {
        BarFollower follower(line);
        BusClient().watch(follower);
        return;
    }
    Json properties;
    try {
        properties = BusClient().properties();
    } catch (const Failure& failure) {
        if (failure.exitStatus != kNotRunning) {
            throw;
        }
    }
    print(line(properties));
}

} // namespace nocturo
