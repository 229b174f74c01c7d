// What a bus, and who is on it, may do to nocturo and nocturoctl.

#include "nocturo_test.h"

#include <functional>
#include <iostream>

#include <systemd/sd-bus.h>

using namespace nocturo;
using namespace nocturo::rig;

using Arguments = std::vector<std::string>;

/// Answers in Nocturo's name what `answer` appends to each reply.
class OddNocturo {
  public:
    using Answer = std::function<void(sd_bus_message* reply)>;

    explicit OddNocturo(const SessionBus& bus) : bus_(bus.connect()) {
        sd_bus_add_filter(bus_.get(), nullptr, handle, this);
        EXPECT_GE(sd_bus_request_name(bus_.get(), "org.nocturo.Nocturo", 0), 0);
    }

    RunResult answer(Session& session, const Arguments& arguments, Answer answer) {
        answer_ = std::move(answer);
        const auto caller = session.start("nocturoctl", arguments);
        while (caller->isRunning()) {
            sd_bus_wait(bus_.get(), 2000);
            sd_bus_process(bus_.get(), nullptr);
        }
        return {caller->wait().value_or(-1), caller->output(), caller->errors()};
    }

  private:
    static int handle(sd_bus_message* call, void* self, sd_bus_error* /*error*/) {
        sd_bus_message* reply = nullptr;
        if (sd_bus_message_is_method_call(call, nullptr, nullptr) == 0 ||
            sd_bus_message_new_method_return(call, &reply) < 0) {
            return 0;
        }
        static_cast<OddNocturo*>(self)->answer_(reply);
        sd_bus_send(nullptr, reply, nullptr);
        sd_bus_message_unref(reply);
        return 1;
    }

    SessionBus::Bus bus_;
    Answer answer_;
};

/// What GetAll answers, but that the display is called so and "Effects" is what `effects` appends.
void appendProperties(sd_bus_message* reply, const char* name,
                      const std::function<void()>& effects) {
    sd_bus_message_open_container(reply, 'a', "{sv}");
    sd_bus_message_append(reply, "{sv}{sv}{sv}{sv}{sv}", "Active", "b", 1, "DisplayServices", "s",
                          "odd", "DimLevel", "d", 0.0, "ColorFilterHue", "d", 0.0,
                          "ColorFilterVividness", "d", 0.0);
    sd_bus_message_append(reply, "{sv}{sv}{sv}{sv}{sv}", "AffectedScreenSet", "ax", 0, "HotKey",
                          "a{sv}", 0, "Settings", "a{sv}", 0, "Disturbances", "u", 0U, "Disturber",
                          "s", "");
    sd_bus_message_append(reply, "{sv}", "Displays", "aa{sv}", 1, 7, "number", "i", 1, "id", "u",
                          7U, "name", "s", name, "main", "b", 1, "rampSize", "u", 256U, "affected",
                          "b", 1, "applied", "b", 0);
    sd_bus_message_append(reply, "{sv}", "", "v", "g", "a{sv}"); // a later Nocturo may tell more
    effects();
    sd_bus_message_close_container(reply);
}

struct OddAnswers : NocturoTest {
    OddAnswers() : NocturoTest(0) {}
};

TEST_F(OddAnswers, AreTakenAsSuch) {
    OddNocturo odd(session_.bus());
    const auto effects = [](sd_bus_message* reply, auto... value) {
        return [=] { sd_bus_message_append(reply, "{sv}", "Effects", value...); };
    };
    const OddNocturo::Answer answers[] = {
        [](sd_bus_message*) {},
        [](sd_bus_message* reply) { sd_bus_message_append(reply, "s", "yes"); },
        [](sd_bus_message* reply) { sd_bus_message_append(reply, "a{sv}", 0); },
        [&](sd_bus_message* reply) { appendProperties(reply, "x", [] {}); },
        [&](sd_bus_message* reply) { appendProperties(reply, "x", effects(reply, "s", "dim")); },
        [&](sd_bus_message* reply) { appendProperties(reply, "x", effects(reply, "as", 0)); },
        [&](sd_bus_message* reply) { appendProperties(reply, "x", effects(reply, "ai", 1, 5)); },
    };
    for (const Arguments& verb : {Arguments{"status"},
                                  {"status", "--json"},
                                  {"effects"},
                                  {"screens"},
                                  {"hotkey"},
                                  {"watch"},
                                  {"screens", "toggle", "1"},
                                  {"preview", "--png", "/dev/null"}}) {
        for (std::size_t i = 0; i < std::size(answers); ++i) {
            SCOPED_TRACE(verb.back() + std::to_string(i));
            if (i == 5) {
                continue; // all is well there
            }
            const RunResult result = odd.answer(session_, verb, answers[i]);
            EXPECT_EQ(result.exit, 1);
            EXPECT_EQ(result.output, "");
            EXPECT_EQ(result.errors, "nocturoctl: Nocturo answered something that this version "
                                     "does not understand.\n");
        }
    }
    const std::string name = odd.answer(session_, {"screens"},
                                        [&](sd_bus_message* reply) {
                                            appendProperties(reply, "\033]0;\302\233\b\303\251",
                                                             effects(reply, "as", 0));
                                        })
                                 .output;
    EXPECT_NE(name.find("\\u001b]0;\\u009b\\u0008\303\251"), std::string::npos) << name;
}

struct BusTrouble : NocturoOnX {
    BusTrouble() : NocturoOnX(2) { select("NDInvertEffect"); }
    ~BusTrouble() override { session_.bus().signal(SIGCONT); }

    std::vector<std::unique_ptr<Process>> floods(const Arguments& kinds) {
        std::vector<std::unique_ptr<Process>> started;
        for (const std::string& kind : kinds) {
            started.push_back(session_.start("caller", {kind}));
        }
        return started;
    }

    /// Others call it without end for so long, and once more while it is to end.
    void flood(Milliseconds time) {
        nocturo_ = session_.startNocturo();
        ctl({"status"});
        const long before = kilobytesOf("Rss:");
        auto others = floods({"toggle", "ask", "open"});
        EXPECT_FALSE(nocturo_->wait(time)) << "it ended by itself";
        others.clear();
        // Behind what waits in the bus's own queue, of however many calls a busy machine sent.
        EXPECT_TRUE(waitUntil([&] { return session_.run("nocturoctl", {"on"}).exit == 0; },
                              5 * kPatience + time))
            << "deaf for longer than it was called";
        EXPECT_TRUE(becomes("ii"));
        EXPECT_TRUE(waitUntil([&] { return kilobytesOf("Rss:") <= before * 11 / 10; }))
            << before << kilobytesOf("Rss:");
        others = floods({"ask", "open"});
        EXPECT_FALSE(nocturo_->wait(Milliseconds(500)));
        std::cout << "Rss " << before << " kB, afterwards " << kilobytesOf("Rss:") << " kB; ";
        nocturo_->signal(SIGTERM);
        const auto start = std::chrono::steady_clock::now();
        EXPECT_TRUE(allOwnWithin(Milliseconds(200)));
        std::cout << "SIGTERM gave the displays back in "
                  << (std::chrono::steady_clock::now() - start) / Milliseconds(1) << " ms\n";
        EXPECT_EQ(nocturo_->wait(), 0);
    }

    /// So many changes while a hook does not end and those who follow are not read.
    void neglect(int changes) {
        nocturo_ = session_.startNocturo();
        const auto hook = session_.settingsFile().parent_path() / "hooks/endless";
        std::filesystem::create_directory(hook.parent_path());
        writeText(hook, "#!/bin/sh\nexec sleep 1000\n");
        std::filesystem::permissions(hook, std::filesystem::perms::owner_all);
        const auto watch = session_.start("nocturoctl", {"watch"});
        const auto bar = session_.start("nocturoctl", {"status", "--bar", "--follow"});
        ctl({"off"});
        std::vector<pid_t> hooks;
        const auto isRunning = [&] {
            hooks = childrenNamed(nocturo_->id(), "sleep");
            return hooks.size() == 1;
        };
        EXPECT_TRUE(waitUntil(isRunning));
        const long before = kilobytesOf("Rss:");
        EXPECT_EQ(
            session_.run("caller", {"toggle", std::to_string(changes + 1)}, 6 * kPatience).exit, 0);
        EXPECT_TRUE(becomes("ii", Milliseconds(200)));
        EXPECT_LE(kilobytesOf("Rss:"), before * 11 / 10);
        EXPECT_TRUE(isRunning());
        ::kill(hooks.at(0), SIGKILL);
        end();
    }
};

TEST_F(BusTrouble, HooksAndReadersThatNeverEndCostNothing) {
    neglect(1000);
}

TEST_F(BusTrouble, SoakOfTenThousandNeglectedChanges) {
    neglect(10000);
}

TEST_F(BusTrouble, MindsSignalsAndGivesBackWhatItTook) {
    flood(Milliseconds(1000));
}

TEST_F(BusTrouble, SoakOfAMinute) {
    flood(Milliseconds(60000));
}

TEST_F(BusTrouble, BusThatHangsDelaysNothing) {
    session_.bus().signal(SIGSTOP);
    nocturo_ = session_.start("nocturo");
    EXPECT_TRUE(becomes("ii", Milliseconds(1000)));
    EXPECT_EQ(session_.run("nocturo").exit, 0); // a second start, told by the lock
    EXPECT_TRUE(allOwnWithin());
    EXPECT_EQ(session_.run("nocturo").exit, 0);
    EXPECT_TRUE(becomes("ii"));
    session_.bus().signal(SIGCONT);
    EXPECT_TRUE(waitUntil([&] { return session_.run("nocturoctl", {"status"}).exit == 0; }));
    session_.bus().signal(SIGSTOP);
    nocturo_->signal(SIGTERM);
    EXPECT_TRUE(allOwnWithin(Milliseconds(200)));
    EXPECT_EQ(nocturo_->wait(Milliseconds(1000)), 0);
}

TEST_F(BusTrouble, BusThatRestartsIsJoinedAgain) {
    nocturo_ = session_.startNocturo();
    for (const char* now : {"oo", "ii"}) {
        session_.bus().end();
        session_.bus().start();
        EXPECT_TRUE(waitUntil([&] { return session_.run("nocturoctl", {"toggle"}).exit == 0; }));
        EXPECT_TRUE(becomes(now)) << shown();
    }
}

TEST_F(BusTrouble, OneNocturoDrivesTheDisplays) {
    nocturo_ = session_.startNocturo();
    ASSERT_TRUE(becomes("ii"));
    ctl({"off"});
    const SessionBus other;
    session_.environment()["DBUS_SESSION_BUS_ADDRESS"] = other.address();
    session_.environment()["XDG_RUNTIME_DIR"] = session_.environment()["HOME"];
    says("nocturo", {}, 1, "Another Nocturo");
    EXPECT_TRUE(allOwnWithin(Milliseconds(0)));
    nocturo_->signal(SIGKILL); // which the server hears of a little later
    nocturo_ = session_.start("nocturo");
    EXPECT_TRUE(becomes("ii"));
}
