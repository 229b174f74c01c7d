// Looks: those that come along, the user's own, and going from one to the next.

#include "documents/looks.h"

#include "base/directory_watch.h"
#include "documents/chosen_look.h"
#include "documents/current_effects.h"
#include "documents/effect_document_file.h"
#include "effects/group_effect.h"
#include "fake_run_loop.h"
#include "settings_fixture.h"
#include "temporary_directory.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

using namespace nocturo;

using testing::ElementsAre;

struct LooksTest : SettingsFixture {
    LooksTest() {
        store_->registerDefaults({{"NDGroupEffect", PropertyArray()}});
        std::filesystem::create_directory(home_ / "shipped");
        put("shipped/Paper tint", 0.25F);
        put("shipped/Night reading", -0.5F);
        center_.addObserver(this, NSUserDefaultsDidChangeNotification, [this] { ++changes_; });
    }
    void put(const std::string& name, float level) const {
        EffectDocument document;
        document.dim = true;
        document.dimLevel = level;
        EXPECT_TRUE(writeEffectDocument(home_ / (name + ".nocturo"), document));
    }
    std::vector<std::string> names() {
        std::vector<std::string> names;
        for (const Look& look : looks_.all()) {
            names.push_back(look.name);
        }
        return names;
    }
    std::string inForce() {
        const Look* look = chosen_.inForce();
        return look != nullptr ? look->name : "";
    }

    TemporaryDirectory home_;
    Looks looks_{home_ / "shipped", home_ / "own", center_};
    ChosenLook chosen_{looks_};
    int changes_ = 0;
};

TEST_F(LooksTest, AreKeptRenamedOrderedAndDeleted) {
    EXPECT_THAT(names(), ElementsAre("Night reading", "Paper tint"));
    EXPECT_TRUE(looks_.save("Film", {}));
    EXPECT_TRUE(looks_.save("Paper tint", {})); // hides that one
    EXPECT_THAT(names(), ElementsAre("Night reading", "Paper tint", "Film"));
    EXPECT_TRUE(looks_.named("paper TINT")->isOwn);
    EXPECT_TRUE(looks_.move("Film", 0));
    EXPECT_FALSE(looks_.rename("Film", "Paper tint"));
    EXPECT_TRUE(looks_.rename("Paper tint", "E-ink \xC3\xA9"));
    EXPECT_THAT(names(), ElementsAre("Film", "Night reading", "Paper tint", "E-ink \xC3\xA9"));
    EXPECT_TRUE(looks_.remove("Film"));
    EXPECT_FALSE(looks_.remove("Paper tint")) << "not the user's";
    EXPECT_FALSE(looks_.named("Film"));
    for (const char* name : {"", "off", "-", ".hidden", "a/b", " a", "a\nb", "\xFF", "\xC0\xAF",
                             "\xE2\x80\xAE", "\xED\xA0\x80", "\xC3"}) {
        EXPECT_FALSE(looks_.save(name, {})) << name;
    }
    EXPECT_THAT(namesIn(home_ / "own"), ElementsAre("E-ink \xC3\xA9.nocturo", "order.plist"));
}

TEST_F(LooksTest, AreAppliedAsOneChangeAndLeftAgain) {
    store_->setFloat(-0.125F, "NDDimEffectLevel");
    const EffectDocument before = currentEffects();
    changes_ = 0;
    EXPECT_FALSE(chosen_.goBack());
    EXPECT_FALSE(chosen_.apply("Nothing"));
    EXPECT_TRUE(chosen_.apply("night reading"));
    EXPECT_EQ(inForce(), "Night reading");
    EXPECT_TRUE(chosen_.apply("Night reading")); // which is there
    EXPECT_TRUE(chosen_.goBack());
    EXPECT_EQ(currentEffects(), before);
    EXPECT_TRUE(chosen_.goBack());
    EXPECT_EQ(inForce(), "Night reading");
    EXPECT_TRUE(chosen_.applyNext());
    EXPECT_EQ(inForce(), "Paper tint");
    EXPECT_TRUE(chosen_.applyNext());
    EXPECT_TRUE(chosen_.applyPrevious());
    EXPECT_EQ(inForce(), "Paper tint");
    EXPECT_EQ(changes_, 7) << "one for each";
    store_->setFloat(90, "NDColorFilterEffectHue"); // not chosen, so not seen
    EXPECT_EQ(inForce(), "Paper tint");
    store_->setFloat(0, "NDDimEffectLevel");
    EXPECT_EQ(inForce(), "");
}

TEST_F(LooksTest, MakeOfACurveWhatTheSettingsWouldWithoutTouchingThem) {
    ZQGammaCurve shown;
    shown.sampleCount = 1;
    shown.redTable[0] = shown.greenTable[0] = shown.blueTable[0] = 1;
    ZQGammaCurve chosen = shown;
    applyEffects(looks_.named("Night reading")->effects, shown);
    EXPECT_EQ(changes_, 0);
    EXPECT_TRUE(chosen_.apply("Night reading"));
    NDGroupEffect::effect().applyEffectOnGammaCurve(&chosen, 0);
    EXPECT_EQ(shown.redTable[0], 0.5F);
    EXPECT_EQ(shown.redTable[0], chosen.redTable[0]);
}

TEST_F(LooksTest, FollowWhatAnotherProgramDoesToTheDirectory) {
    FakeRunLoop loop;
    const DirectoryWatch watch(looks_.directories(), loop, [&] { looks_.directoriesDidChange(); });
    std::vector<std::string> told;
    center_.addObserver(&told, kLooksDidChangeNotification, [&] { told = names(); });
    const auto toldAfter = [&](const auto& change) {
        change();
        EXPECT_TRUE(loop.serveDescriptors());
        loop.advance(100);
        return told;
    };
    EXPECT_THAT(toldAfter([&] { std::filesystem::create_directories(home_ / "own"); }),
                ElementsAre("Night reading", "Paper tint"));
    EXPECT_THAT(toldAfter([&] { put("own/Film", 0); }),
                ElementsAre("Night reading", "Paper tint", "Film"));
    toldAfter([&] { put("own/Film", 0.5F); });
    EXPECT_EQ(looks_.named("Film")->effects.dimLevel, 0.5F);
    EXPECT_THAT(toldAfter([&] { std::filesystem::remove(home_ / "own/Film.nocturo"); }),
                ElementsAre("Night reading", "Paper tint"));
    center_.removeObserver(&told);
}

TEST_F(LooksTest, TakeWhatOthersPutIntoTheDirectoryWithinLimits) {
    std::filesystem::create_directories(home_ / "own/directory.nocturo");
    ASSERT_EQ(::mkfifo((home_ / "own/pipe.nocturo").c_str(), 0600), 0);
    writeText(home_ / "own/huge.nocturo", std::string(2 << 20, ' '));
    writeText(home_ / "own/text.nocturo", "no document");
    writeText(home_ / "own/order.plist", "damaged");
    std::filesystem::create_symlink("/dev/zero", home_ / "own/zero.nocturo");
    std::filesystem::create_symlink("loop.nocturo", home_ / "own/loop.nocturo");
    for (const char* name : {"good", "odd \x1B[31m", "\xFF\xFE"}) {
        put(std::string("own/") + name, -0.1F);
    }
    EXPECT_THAT(names(), ElementsAre("Night reading", "Paper tint", "good"));
    const std::string document = readText(home_ / "own/good.nocturo");
    for (int number = 0; number < 3000; ++number) {
        writeText(home_ / ("own/" + std::to_string(number) + ".nocturo"), document);
    }
    EXPECT_EQ(names().size(), 2 + Looks::kMost);
}
