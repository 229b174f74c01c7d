#include "automation/automation.h"
#include "automation/foreground.h"
#include "automation/word_list.h"
#include "desktop/controls/parameter_slider.h"
#include "desktop/hotkey_field/hot_key_text_field.h"
#include "desktop/looks/looks_row.h"
#include "desktop/preferences/keep_colors_box.h"
#include "desktop/preferences/preference_panel.h"
#include "desktop/preferences/preferences_controller.h"
#include "desktop/preview/effect_preview.h"
#include "desktop/rules/rules_page.h"
#include "desktop/schedule/point_handle.h"
#include "desktop/schedule/schedule_page.h"
#include "display_services_fixture.h"
#include "documents/chosen_look.h"
#include "documents/effect_document_file.h"
#include "documents/looks.h"
#include "effects/color_filter_effect.h"
#include "effects/color_temperature.h"
#include "effects/dim_effect.h"
#include "fake_wall_clock.h"
#include "session/autostart.h"
#include "settings/settings_keys.h"
#include "temporary_directory.h"

#include <gmock/gmock.h>

#include <QTest>
#include <QtWidgets>

using namespace nocturo;
using testing::ElementsAre;
using testing::StartsWith;

struct PreferencesWindow : DisplayServicesFixture {
    PreferencesWindow() {
        NDGroupEffect::initialize();
        hardware_.addUpTo(2);
        start();
        std::filesystem::create_directory(home / "shipped");
        EXPECT_TRUE(writeEffectDocument(home / "shipped/Negative.nocturo", {.invertScreen = true}));
    }

    void show() {
        controller.showWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(controller.window()));
    }
    template <typename Widget>
    Widget& find(const char* name) {
        return *controller.window()->findChild<Widget*>(name);
    }
    bool isChecked(const char* name) { return find<QAbstractButton>(name).isChecked(); }
    ParameterSlider& slider(const char* name) { return find<ParameterSlider>(name); }
    void click(const char* name) { find<QAbstractButton>(name).click(); }
    void stepDown(const char* name) {
        QTest::keyClick(slider(name).findChild<QSlider*>(), Qt::Key_Left);
    }

    /// The message that is shown, or null.
    QMessageBox* sheet() {
        const auto boxes = controller.window()->findChildren<QMessageBox*>();
        const auto shown = std::find_if(boxes.begin(), boxes.end(),
                                        [](const QMessageBox* box) { return box->isVisible(); });
        return shown == boxes.end() ? nullptr : *shown;
    }
    QString said() { return sheet() == nullptr ? QString() : sheet()->informativeText(); }
    void answer(const QString& text) {
        ASSERT_NE(sheet(), nullptr);
        for (QAbstractButton* button : sheet()->buttons()) {
            if (button->text().remove(u'&') == text) {
                button->click();
                return;
            }
        }
    }
    TemporaryDirectory home;
    Looks looks{home / "shipped", home / "own", center_};
    ChosenLook chosenLook{looks};
    const Autostart autostart{home / "autostart", {home / "xdg"}, "/opt/50%/nocturo"};
    bool on = false;
    ZQGammaCurve captured; // nothing while the effect is off
    NDPreferencesController controller{PreferenceSurroundings{
        *store_, center_,
        [this](CGDirectDisplayID) { return captured.sampleCount > 0 ? &captured : nullptr; },
        [](bool /*recording*/) {}, [this] { return on; },
        [this] {
            on = !on;
            controller.updateState();
        },
        [this] { return std::string(on ? "On: nothing" : "Off"); }, &chosenLook,
        [this](const std::string& name) { EXPECT_TRUE(chosenLook.apply(name)); }, &autostart}};
};

TEST_F(PreferencesWindow, BoxesChangeTheirSettingAndFollowIt) {
    show();
    using Box = std::pair<const char*, const char*>;
    for (const auto& [name, effect] :
         {Box{"invertScreen", "NDInvertEffect"}, Box{"hideStripes", "NDHideStripesEffect"},
          Box{"hdtvLuminance", "NDHDTVLuminanceEffect"}, Box{"colorFilter", "NDColorFilterEffect"},
          Box{"dimScreen", "NDDimEffect"}}) {
        click(name);
        EXPECT_EQ(chosenEffects(), PropertyArray{effect});
        click(name);
        EXPECT_EQ(chosenEffects(), PropertyArray{}) << name;
        NDGroupEffect::effect().addEffect(effect);
        EXPECT_TRUE(isChecked(name));
        NDGroupEffect::effect().removeEffect(effect);
    }
    EXPECT_NEAR(slider("colorFilterVividness").value(), 0.45, 0.01) << "offered at the first tick";
    for (const auto& [name, key] :
         {Box{"activateAtLaunch", "ActivateAtLaunch"}, Box{"activateOnClick", "ActivateOnClick"},
          Box{"continuouslyApply", "ContinuouslyApply"},
          Box{"deactivateForScreenSaver", "NDDeactivateForScreenSaver"}}) {
        click(name);
        EXPECT_TRUE(store_->boolForKey(key)) << key;
        store_->setBool(false, key);
        EXPECT_FALSE(isChecked(name)) << key;
    }
    click("showInTray");
    EXPECT_EQ(store_->integerForKey("ShowStatusItem"), 1);
    store_->setInteger(0, "ShowStatusItem");
    EXPECT_TRUE(isChecked("showInTaskBar"));
}

TEST_F(PreferencesWindow, TheDesktopsOwnEntrySaysWhetherItStartsWithTheSession) {
    const auto entry = home / "autostart/org.nocturo.Nocturo.desktop";
    const auto installed = home / "xdg/autostart/org.nocturo.Nocturo.desktop";
    show();
    EXPECT_FALSE(isChecked("startWithSession"));
    click("startWithSession");
    EXPECT_TRUE(readText(entry).find("\nExec=\"/opt/50%%/nocturo\" --at-login\n") !=
                std::string::npos);
    EXPECT_TRUE(isChecked("startWithSession"));
    writeText(entry, "[Desktop Entry]\nX-GNOME-Autostart-enabled = false\n"); // by the desktop
    EXPECT_FALSE(autostart.isOn());
    EXPECT_TRUE(autostart.setOn(false));
    EXPECT_FALSE(std::filesystem::exists(entry));

    std::filesystem::create_directories(installed.parent_path());
    writeText(installed, "[Desktop Entry]\n");
    const Autostart besides(entry.parent_path(), {home / "xdg"}, "/usr/bin/nocturo");
    EXPECT_TRUE(besides.isOn());
    EXPECT_TRUE(besides.setOn(false));
    EXPECT_FALSE(besides.isOn());
    EXPECT_TRUE(besides.setOn(true));
    EXPECT_FALSE(std::filesystem::exists(entry)) << "the installed one holds";
}

TEST_F(PreferencesWindow, OffersTheTrayOnce) {
    show();
    auto& offer = find<QWidget>("trayOffer");
    EXPECT_FALSE(offer.isVisible());
    controller.offerTray();
    EXPECT_TRUE(offer.isVisible());
    click("acceptTray");
    EXPECT_FALSE(offer.isVisible());
    EXPECT_EQ(store_->integerForKey("ShowStatusItem"), 1);
}

TEST_F(PreferencesWindow, SlidersAreThereWithTheirEffectAndKeepTheirValueWithoutIt) {
    store_->setFloat(210.25F, "NDColorFilterEffectHue");
    show();
    EXPECT_FALSE(slider("dimLevel").isEnabled());
    EXPECT_EQ(slider("dimLevel").value(), -0.5F);
    EXPECT_EQ(slider("colorFilterHue").value(), 210.25F);
    click("dimScreen");
    EXPECT_TRUE(slider("dimLevel").isEnabled());
    EXPECT_FALSE(slider("colorFilterHue").isEnabled());
    stepDown("dimLevel");
    EXPECT_FLOAT_EQ(NDDimEffect::level(), -0.51F);
    NDDimEffect::setLevel(0.125F);
    EXPECT_EQ(slider("dimLevel").value(), 0.125F);
    click("colorFilter");
    stepDown("colorFilterHue");
    stepDown("colorFilterVividness");
    EXPECT_FLOAT_EQ(NDColorFilterEffect::hue(), 209.25F);
    EXPECT_FLOAT_EQ(NDColorFilterEffect::vividness(), 0.99F);
    EXPECT_EQ(slider("fade").shownText(), "at once");
    store_->setFloat(1.5F, "FadeSeconds");
    stepDown("fade");
    EXPECT_FLOAT_EQ(store_->floatForKey("FadeSeconds"), 1.4F);
    EXPECT_EQ(slider("fade").shownText(), "1.4 s");
}

TEST_F(PreferencesWindow, AsksBeforeItClosesWithoutAnEffectThatTheUserTookAway) {
    show();
    controller.window()->close(); // nothing was touched
    EXPECT_FALSE(controller.window()->isVisible());
    controller.showWindow();
    click("invertScreen");
    click("invertScreen");
    controller.window()->close();
    EXPECT_EQ(sheet()->text(), "No effect has been chosen.");
    answer("Cancel");
    EXPECT_TRUE(controller.window()->isVisible());
    controller.window()->close();
    answer("Close anyway");
    EXPECT_FALSE(controller.window()->isVisible());
}

TEST_F(PreferencesWindow, PreviewsTheEffectOnceWhileTheScreenShowsIt) {
    controller.loadWindow();
    const auto& preview = find<EffectPreview>("preview").curves();
    NDGroupEffect::effect().addEffect("NDInvertEffect");
    EXPECT_EQ(preview.seenThrough.sampleCount, 0U);
    captured.sampleCount = kGammaCurveCapacity;
    captured.redTable[255] = 1;
    store_->setObject(PropertyArray{1LL}, "AffectedScreenSet"); // which puts it on this screen
    EXPECT_EQ(preview.before.redTable[255], 1.0F);
    EXPECT_EQ(preview.seenThrough.redTable[0], 1.0F);
}

TEST_F(PreferencesWindow, EveryControlIsReachedByTheKeyboardInOrderAndExplained) {
    show();
    const auto tabbed = [](QWidget& first) {
        first.setFocus();
        QStringList order;
        do {
            const QWidget* control = QApplication::focusWidget();
            const QString name = control->objectName();
            order << (name.isEmpty() ? control->parentWidget()->objectName() : name);
            EXPECT_TRUE(!control->toolTip().isEmpty() || name.isEmpty() || name == "closeButton" ||
                        name == "qt_tabwidget_tabbar")
                << name.toStdString();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (!first.hasFocus() && order.size() < 40);
        order.removeDuplicates(); // a slider and its field
        return order.join(' ').toStdString();
    };
    EXPECT_EQ(
        tabbed(find<QWidget>("effectSwitch")),
        "effectSwitch qt_tabwidget_tabbar looksRow saveLook changeLook invertScreen hideStripes "
        "hdtvLuminance colorFilter "
        "temperature dimScreen affectedScreens previewDisplay showCurves openButton saveButton "
        "closeButton");
    controller.showPage(1);
    EXPECT_EQ(
        tabbed(find<QWidget>("effectSwitch")),
        "effectSwitch qt_tabwidget_tabbar activateAtLaunch startWithSession activateOnClick "
        "continuouslyApply "
        "deactivateForScreenSaver fade useHotKey hotKeyField showInTaskBar openButton saveButton "
        "closeButton");
}

TEST_F(PreferencesWindow, FitsASmallScreenWithLargeText) {
    show();
    controller.window()->resize(900, 600);
    QCoreApplication::processEvents();
    const QPoint place = find<QWidget>("pages").pos();
    controller.window()->resize(640, 333); // of 960 x 500 at 150 %
    QCoreApplication::processEvents();
    const auto& page = find<QScrollArea>("effectsPage");
    EXPECT_EQ(page.verticalScrollBar()->maximum() + page.horizontalScrollBar()->maximum(), 0);
    EXPECT_FALSE(find<QWidget>("openButton").isVisible());
    controller.window()->resize(900, 600);
    EXPECT_TRUE(find<QWidget>("openButton").isVisible());
    QCoreApplication::processEvents();
    EXPECT_EQ(find<QWidget>("pages").pos(), place);
}

TEST_F(PreferencesWindow, HasASwitchThatFollowsTheEffect) {
    show();
    QTest::keyClick(controller.window(), Qt::Key_E, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return on; }));
    EXPECT_EQ(find<QLabel>("stateSentence").text(), "On: nothing");
    on = false;
    controller.updateState();
    EXPECT_FALSE(isChecked("effectSwitch"));
}

TEST_F(PreferencesWindow, LooksAreShownPickedKeptRenamedMovedAndDeleted) {
    captured.sampleCount = 2;
    captured.redTable[1] = captured.greenTable[1] = captured.blueTable[1] = 1;
    show();
    auto& row = find<LooksRow>("looksRow");
    const auto shown = [&row](int at) { return row.picture(at, {1, 1}).pixelColor(0, 0); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return !row.picture(0, {1, 1}).isNull(); }));
    const QColor negative = shown(0);
    const auto tick = [&row](int at) { return row.item(at)->checkState() == Qt::Checked; };
    QTest::mouseClick(row.viewport(), Qt::LeftButton, {}, row.visualItemRect(row.item(0)).center());
    EXPECT_TRUE(isChecked("invertScreen"));
    EXPECT_TRUE(tick(0));
    click("dimScreen");
    NDDimEffect::setLevel(-0.5F);
    EXPECT_FALSE(tick(0));

    const auto type = [this](const QString& name) {
        auto* sheet = controller.window()->findChild<QDialog*>();
        sheet->findChild<QLineEdit*>()->setText(name);
        QTest::keyClick(sheet, Qt::Key_Return);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    const auto titles = [&row] {
        QStringList list;
        for (int at = 0; at < row.count(); ++at) {
            list << row.item(at)->text();
        }
        return list.join(", ").toStdString();
    };
    click("saveLook");
    type("a/b"); // refused, which is said
    type("Mine");
    EXPECT_EQ(titles(), "Negative, Mine");
    EXPECT_TRUE(tick(1));
    EXPECT_NE(shown(1), negative);
    click("saveLook");
    type("Mine"); // is there
    EXPECT_NE(controller.window()->findChild<QDialog*>(), nullptr);
    type("Yours");
    store_->setObject(PropertyArray{"07:00 off", "sunset Yours"}, kSchedule);
    store_->setObject(PropertyArray{"game Yours"}, kRules);
    store_->setObject(PropertyArray{"5 Yours"}, kDisplayLooks);
    row.setCurrentRow(2);
    QTest::keyClick(&row, Qt::Key_F2);
    type("Mine"); // is there, so nothing is another
    EXPECT_THAT(wordsOf(*store_, kRules), ElementsAre("game Yours"));
    type("Film");
    EXPECT_THAT(wordsOf(*store_, kSchedule), ElementsAre("07:00 off", "sunset Film"));
    EXPECT_THAT(wordsOf(*store_, kDisplayLooks), ElementsAre("5 Film"));
    QTest::keyClick(&row, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(titles(), "Film, Negative, Mine");
    const auto drag = [&row](int from, int to) {
        const auto middle = [&row](int at) { return row.visualItemRect(row.item(at)).center(); };
        QTest::mousePress(row.viewport(), Qt::LeftButton, {}, middle(from));
        QTest::mouseMove(row.viewport(), middle(to) + QPoint(from < to ? 5 : -5, 0));
        QTest::mouseRelease(row.viewport(), Qt::LeftButton, {}, middle(to));
    };
    drag(0, 2);
    EXPECT_EQ(titles(), "Negative, Mine, Film");
    drag(2, 0);
    EXPECT_EQ(titles(), "Film, Negative, Mine");
    QTest::keyClick(&row, Qt::Key_Delete);
    EXPECT_THAT(said().toStdString(), StartsWith("It will be missed by: sunset Film, game Film"));
    answer("Delete");
    EXPECT_EQ(titles(), "Negative, Mine");
    row.setCurrentRow(0);
    QTest::keyClick(&row, Qt::Key_Delete); // not the user's
    EXPECT_EQ(sheet(), nullptr);
    QTest::keyClick(&row, Qt::Key_Space);
    EXPECT_FALSE(isChecked("dimScreen"));
}

TEST_F(PreferencesWindow, TemperaturesAreColorsOfTheFilterAndNoneIsAnEmptyField) {
    show();
    EXPECT_TRUE(slider("temperature").isEmpty());
    slider("temperature").moveTo(2700);
    EXPECT_EQ(chosenEffects(), PropertyArray{"NDColorFilterEffect"});
    EXPECT_NEAR(NDColorFilterEffect::hue(), filterAtTemperature(2700).hue, 1e-4);
    EXPECT_EQ(find<QLabel>("temperatureWord").text(), "tungsten");
    NDColorFilterEffect::setHue(300);
    EXPECT_TRUE(slider("temperature").isEmpty());
    EXPECT_EQ(find<QLabel>("hueWord").text(), "magenta");
    NDColorFilterEffect::setHue(static_cast<float>(filterAtTemperature(2700).hue));
    EXPECT_NEAR(slider("temperature").value(), 2700, 1);
    EXPECT_FALSE(slider("temperature").isEmpty());
}

// 960 x 500 points at 150 % text.
TEST_F(PreferencesWindow, FitsASmallScreen) {
    controller.loadWindow();
    QFont large = controller.window()->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    controller.window()->setFont(large);
    const QSize least = controller.window()->minimumSizeHint();
    EXPECT_LE(least.width(), 960);
    EXPECT_LE(least.height(), 500);
}

struct EffectDocuments : PreferencesWindow {
    QString path(const char* name) const { return QString::fromStdString(directory / name); }
    QString written(const EffectDocument& content) const {
        EXPECT_TRUE(writeEffectDocument(directory / "a.nocturo", content));
        return path("a.nocturo");
    }
    /// Answers the file panel that the button opens.
    void choose(const char* button, const QString& name, bool hideExtension = false) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the panel before
        click(button);
        auto* panel = controller.window()->findChild<QFileDialog*>();
        panel->setDirectory(path(""));
        for (QCheckBox* hide : panel->findChildren<QCheckBox*>()) {
            hide->setChecked(hideExtension);
        }
        auto* field = panel->findChild<QLineEdit*>("fileNameEdit");
        suggested = field->text();
        field->setText(name);
        field->setFocus(); // as it has where somebody types
        QTest::keyClick(field, Qt::Key_Return);
    }

    QString suggested; // by the panel
    TemporaryDirectory directory;
    const EffectDocument document{true, false, true, true, 33.3F, 0.7F, false, 0.1F};
};

TEST_F(EffectDocuments, SetEveryControlOfAWindowThatIsLoaded) {
    int used = 0;
    QObject::connect(&controller, &NDPreferencesController::documentWasUsed, [&] { ++used; });
    EXPECT_TRUE(controller.openEffectFile(written(document)));
    EXPECT_EQ(chosenEffects(), PropertyArray{}) << "the window is not loaded";
    EXPECT_EQ(used, 0) << "and nothing to open again";
    EXPECT_FALSE(controller.isWindowLoaded());

    controller.loadWindow();
    EXPECT_TRUE(controller.openEffectFile(written(document)));
    EXPECT_EQ(chosenEffects(),
              (PropertyArray{"NDInvertEffect", "NDHDTVLuminanceEffect", "NDColorFilterEffect"}));
    EXPECT_EQ(NDColorFilterEffect::hue(), 33.3F);
    EXPECT_EQ(NDDimEffect::level(), 0.1F);
    EXPECT_TRUE(controller.openEffectFile(written({.dimLevel = -1.5F})));
    EXPECT_EQ(NDDimEffect::level(), -1.0F) << "as far as the slider goes";
}

TEST_F(EffectDocuments, AreDroppedOntoTheWindow) {
    show();
    const auto drop = [&](const QString& file) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(controller.window(), &enter);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(controller.window(), &event);
    };
    drop(written(document));
    EXPECT_TRUE(isChecked("invertScreen"));
    drop("/no/such.nocturo");
    EXPECT_EQ(said(), "“such.nocturo” is not an effect document.");
}

TEST_F(EffectDocuments, PanelsSaveAndOpen) {
    show();
    click("invertScreen");
    choose("saveButton", "mine", true);
    EXPECT_EQ(suggested, "Negative.nocturo"); // that look is in force
    const auto saved = directory / "mine.nocturo";
    EXPECT_TRUE(readEffectDocument(saved).value().invertScreen);
    writeText(directory / "other", "");
    setExtensionHidden(directory / "other", true); // no file system has to be able to
    EXPECT_EQ(isExtensionHidden(saved), isExtensionHidden(directory / "other"));
    choose("saveButton", "plain.txt");
    EXPECT_FALSE(isExtensionHidden(directory / "plain.txt.nocturo"));
    EXPECT_TRUE(readEffectDocument(directory / "plain.txt.nocturo"));
    click("invertScreen");
    choose("saveButton", "mine"); // which is there
    answer("Yes");
    EXPECT_FALSE(readEffectDocument(saved).value().invertScreen);
    click("invertScreen");
    choose("saveButton", "mine");
    answer("Yes");

    click("invertScreen");
    choose("openButton", "mine.nocturo");
    EXPECT_TRUE(isChecked("invertScreen"));

    choose("openButton", "/proc/nowhere"); // must not wait for the answer
    EXPECT_EQ(said(), "“nowhere” is not an effect document.");
    answer("OK");
    controller.window()->findChild<QFileDialog*>()->reject();

    choose("saveButton", "/proc/mine.nocturo");
    EXPECT_EQ(said(), "Could not save settings at this location.");
}

TEST_F(PreferencesWindow, PointsOfTheScheduleAreAddedMovedAndRemoved) {
    FakeWallClock clock(Moment(std::chrono::days(20'000) + std::chrono::hours(12)));
    FakeRunLoop runLoop;
    Automation automation(*store_, center_, clock, runLoop, looks, home.path());
    store_->setObject(std::string("52.5 13.4"), kPlace);
    automation.start();
    SchedulePage page;
    page.setSurroundings({*store_, center_, automation, looks});
    page.resize(800, 500);
    page.show();
    const auto press = [&page](const char* name) { page.findChild<QPushButton*>(name)->click(); };
    const auto words = [this] { return wordsOf(*store_, kSchedule); };
    press("addPoint");
    press("addPoint");
    EXPECT_THAT(words(), ElementsAre("sunset Negative", "sunrise off"));
    auto* handle = page.findChild<QSlider*>();
    const int sunset = handle->value();
    QTest::keyClick(handle, Qt::Key_Left);
    EXPECT_EQ(words()[0], "sunset-00:05 Negative");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(handle)->text(QAccessible::Value),
              clockText(sunset - 5));
    const auto dragged = [&](int by, Qt::Key key) {
        const QPoint middle = handle->rect().center();
        QTest::mousePress(handle, Qt::LeftButton, {}, middle);
        QTest::mouseMove(handle, middle + QPoint(by, 0));
        EXPECT_EQ(words()[0], "sunset-00:05 Negative") << "until it is let go";
        QTest::keyClick(handle, key);
        QTest::mouseRelease(handle, Qt::LeftButton);
        return words()[0];
    };
    EXPECT_EQ(dragged(-100, Qt::Key_Escape), "sunset-00:05 Negative");
    EXPECT_THAT(dragged(-100, Qt::Key_Shift), StartsWith("sunset-0"));
    EXPECT_LT(handle->value(), sunset - 60);
    page.findChild<QTreeWidget*>()->setCurrentItem(page.findChild<QTreeWidget*>()->topLevelItem(0));
    press("removePoint");
    EXPECT_EQ(words().size(), 1U);
    EXPECT_THAT(words()[0], StartsWith("sunset"));

    page.findChild<QSpinBox*>("scheduleFade")->setValue(30);
    EXPECT_EQ(store_->floatForKey(kScheduleFadeMinutes), 30);
    EXPECT_TRUE(automation.pause("30m"));
    EXPECT_TRUE(page.findChild<QPushButton*>("resume")->isEnabled());
    press("resume");
    EXPECT_FALSE(automation.ruling(true).by == Ruler::pause);
}

TEST_F(PreferencesWindow, ADisplayIsGivenALookOfItsOwnWhichThePreviewDraws) {
    FakeWallClock clock(Moment{});
    FakeRunLoop runLoop;
    Automation automation(*store_, center_, clock, runLoop, looks, home.path());
    automation.start();
    NDPreferencesController window{{.defaults = *store_,
                                    .localCenter = center_,
                                    .capturedCurve = [](CGDirectDisplayID) { return nullptr; },
                                    .recordingDidChange = [](bool) {},
                                    .looks = &chosenLook,
                                    .automation = &automation}};
    window.loadWindow();
    auto& look = *window.window()->findChild<QComboBox*>("displayLook");
    const auto drawn = [&] {
        return window.window()->findChild<EffectPreview*>()->curves().after.redTable[0];
    };
    for (const auto& [row, list, black] : {std::tuple{1, 1U, 1.0F}, std::tuple{0, 0U, 0.0F}}) {
        look.setCurrentIndex(row);
        Q_EMIT look.activated(row);
        EXPECT_EQ(wordsOf(*store_, kDisplayLooks).size(), list);
        EXPECT_EQ(drawn(), black);
    }
}

/// Tells of the windows what a test says.
struct ToldForeground : Foreground {
    explicit ToldForeground(const InFront& told) : told_(told) {}
    bool isTold() const override { return true; }
    const InFront& inFront() const override { return told_; }
    void displaysDidChange() override {}
    const InFront& told_;
};

TEST_F(PreferencesWindow, RulesAreAddedReplacedAndRemovedForProgramsThatArePicked) {
    FakeWallClock clock(Moment{});
    FakeRunLoop runLoop;
    Automation automation(*store_, center_, clock, runLoop, looks, home.path());
    automation.start();
    InFront inFront{{"nocturo", "Nocturo"}};
    std::function<void()> changed;
    RulesPage page;
    page.setSurroundings({*store_, center_, automation, looks});
    page.show();
    const auto combos = page.findChildren<QComboBox*>();
    EXPECT_EQ(combos[0]->count(), 1) << "of games alone, where nobody tells of windows";
    page.hide();
    automation.rules().setSources({[&](bool, std::function<void()> heard) {
                                       changed = std::move(heard);
                                       return std::make_unique<ToldForeground>(inFront);
                                   },
                                   {}});
    page.show();
    const auto press = [&page](const char* name) { page.findChild<QPushButton*>(name)->click(); };
    const auto choose = [](QComboBox& combo, int row) {
        combo.setCurrentIndex(row);
        Q_EMIT combo.activated(row);
    };
    page.findChild<QCheckBox*>("useRules")->click();
    press("addRule");
    choose(*combos[0], 1);
    page.hide();
    page.show();
    EXPECT_FALSE(page.findChild<QPushButton*>("addRule")->isEnabled());
    choose(*combos[0], 0);
    press("pickWindow"); // makes it one about a program again
    changed();
    inFront.programs = {"gimp-2.10", "Gimp"};
    changed();
    press("addRule");
    choose(*combos[1], 1);
    press("addRule");
    EXPECT_THAT(wordsOf(*store_, kRules), ElementsAre("fullscreen off", "program Gimp Negative"));
    QCoreApplication::processEvents();
    EXPECT_FALSE(page.findChild<QPushButton*>("pickWindow")->isChecked());
    EXPECT_EQ(page.findChild<QLabel*>()->text(), "Now: Gimp is in front – Negative");
    page.findChild<QToolButton*>()->click(); // up
    EXPECT_THAT(wordsOf(*store_, kRules), ElementsAre("program Gimp Negative", "fullscreen off"));
    press("removeRule");
    EXPECT_THAT(wordsOf(*store_, kRules), ElementsAre("fullscreen off"));
}

TEST_F(PreferencesWindow, TheQuestionAboutColorsStandsOverIt) {
    show();
    KeepColorsBox box;
    std::vector<bool> answers;
    const auto ask = [&](int seconds) {
        box.show(controller.window(), seconds, [&](bool keep) { answers.push_back(keep); });
    };
    ask(10);
    EXPECT_EQ(sheet()->text(), "Keep these colors?");
    ask(9);
    EXPECT_TRUE(sheet()->informativeText().contains("9 s"));
    QTest::keyClick(sheet(), Qt::Key_Escape);
    box.withdraw();
    for (const char* words : {"Keep", "Go back"}) {
        ask(10);
        answer(words);
        box.withdraw();
    }
    ask(10);
    box.withdraw();
    EXPECT_EQ(sheet(), nullptr);
    EXPECT_EQ(answers, (std::vector{false, true, false}));
}
