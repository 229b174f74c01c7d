#include "effects/color_filter_effect.h"
#include "effects/dim_effect.h"
#include "effects/group_effect.h"
#include "fake_gamma_hardware.h"
#include "hotkeys/field/hot_key_text_field.h"
#include "platform/displays/display_functions.h"
#include "platform/displays/ramp_display_services.h"
#include "platform/notification_center.h"
#include "platform/settings/defaults_store.h"
#include "preferences/controls/parameter_slider.h"
#include "preferences/documents/effect_document_file.h"
#include "preferences/window/keep_colors_question.h"
#include "preferences/window/preference_panel.h"
#include "preferences/window/preferences_controller.h"
#include "temporary_directory.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTest>
#include <QUrl>

#include <fstream>

namespace nocturo {
namespace {

using testing::Each;
using testing::ElementsAre;

ZQGammaCurve identityCurve() {
    ZQGammaCurve curve;
    curve.sampleCount = kGammaCurveCapacity;
    for (std::size_t i = 0; i < kGammaCurveCapacity; ++i) {
        curve.redTable[i] = curve.greenTable[i] = curve.blueTable[i] =
            static_cast<float>(i) / 255.0F;
    }
    return curve;
}

class PreferencesWindow : public testing::Test {
  protected:
    PreferencesWindow() {
        NDEffect::setUserDefaults(store);
        NDGroupEffect::initialize();
        hardware.add("ONE", 1);
        hardware.add("TWO", 2);
        services =
            std::make_unique<RampDisplayServices>(std::make_unique<FakeGammaHardware>(hardware));
        setDisplayServices(services.get());
    }
    ~PreferencesWindow() override {
        setDisplayServices(nullptr);
        NDEffect::setUserDefaults(nullptr);
    }

    void show() {
        controller.showWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(controller.window()));
    }
    template <typename Widget>
    Widget& find(const char* name) {
        auto* found = controller.window()->findChild<Widget*>(QLatin1String(name));
        if (found == nullptr) {
            throw std::runtime_error(name);
        }
        return *found;
    }
    QCheckBox& box(const char* name) { return find<QCheckBox>(name); }
    ParameterSlider& slider(const char* name) { return find<ParameterSlider>(name); }
    void click(const char* name) { find<QAbstractButton>(name).click(); }
    void stepDown(const char* name) {
        QTest::keyClick(slider(name).findChild<QSlider*>(), Qt::Key_Left);
    }

    /// The message that is shown, or null.
    QMessageBox* sheet() {
        for (QMessageBox* box : controller.window()->findChildren<QMessageBox*>()) {
            if (box->isVisible()) {
                return box;
            }
        }
        return nullptr;
    }
    static void press(QMessageBox& box, const QString& text) {
        for (QAbstractButton* button : box.buttons()) {
            if (button->text().remove(u'&') == text) {
                button->click();
            }
        }
    }
    std::vector<std::string> effects() const {
        std::vector<std::string> names;
        for (const PropertyValue& name : *store->arrayForKey(NDGroupEffect::kName)) {
            names.push_back(*name.as<std::string>());
        }
        return names;
    }

    NotificationCenter center;
    std::shared_ptr<DefaultsStore> store = std::make_shared<DefaultsStore>(center);
    FakeGammaHardwareState hardware;
    std::unique_ptr<RampDisplayServices> services;
    ZQGammaCurve captured = identityCurve();
    bool effectIsOn = false;
    std::vector<bool> recordings;
    NDPreferencesController controller{PreferenceSurroundings{
        *store, center, [this](CGDirectDisplayID) { return effectIsOn ? &captured : nullptr; },
        [this](bool recording) { recordings.push_back(recording); }}};
};

TEST_F(PreferencesWindow, BoxesOfEffectsChangeTheSelectionAndFollowIt) {
    show();
    const std::vector<std::pair<const char*, std::string>> boxes = {
        {"invertScreen", "NDInvertEffect"},
        {"hideStripes", "NDHideStripesEffect"},
        {"hdtvLuminance", "NDHDTVLuminanceEffect"},
        {"colorFilter", "NDColorFilterEffect"},
        {"dimScreen", "NDDimEffect"}};
    for (const auto& [name, effect] : boxes) {
        EXPECT_FALSE(box(name).isChecked());
        click(name);
        EXPECT_THAT(effects(), ElementsAre(effect)) << name;
        click(name);
        EXPECT_THAT(effects(), ElementsAre()) << name;
        int written = 0;
        NDGroupEffect::effect().addEffect(effect);
        center.addObserver(&written, NSUserDefaultsDidChangeNotification, [&] { ++written; });
        NDGroupEffect::effect().removeEffect("no effect's name");
        EXPECT_TRUE(box(name).isChecked());
        EXPECT_LE(written, 1) << "a control that is set from the settings must not write them";
        center.removeObserver(&written);
        NDGroupEffect::effect().removeEffect(effect);
    }
}

TEST_F(PreferencesWindow, SlidersAreThereWithTheirEffectAndKeepTheirValueWithoutIt) {
    store->setFloat(210.25F, "NDColorFilterEffectHue");
    show();
    EXPECT_FALSE(slider("dimLevel").isEnabled());
    EXPECT_EQ(slider("dimLevel").value(), -0.5F);
    EXPECT_EQ(slider("colorFilterHue").value(), 210.25F);
    EXPECT_EQ(slider("colorFilterVividness").value(), 1.0F);
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
}

TEST_F(PreferencesWindow, OtherBoxesWriteTheirSettings) {
    show();
    for (const auto& [name, key] :
         {std::pair("activateAtLaunch", "ActivateAtLaunch"),
          std::pair("activateOnClick", "ActivateOnClick"),
          std::pair("continuouslyApply", "ContinuouslyApply"),
          std::pair("deactivateForScreenSaver", "NDDeactivateForScreenSaver")}) {
        click(name);
        EXPECT_TRUE(store->boolForKey(key)) << key;
        store->setBool(false, key);
        EXPECT_FALSE(box(name).isChecked()) << key;
    }
    click("showInTray");
    EXPECT_EQ(store->integerForKey("ShowStatusItem"), 1);
    store->setInteger(0, "ShowStatusItem");
    EXPECT_TRUE(find<QRadioButton>("showInTaskBar").isChecked());
}

TEST_F(PreferencesWindow, TheScreensButtonSumsUpTheChoice) {
    show();
    auto& button = find<QPushButton>("affectedScreens");
    EXPECT_EQ(button.text(), "All Screens");
    const auto items = button.menu()->actions();
    ASSERT_EQ(items.size(), 5); // itself, all, a line, two screens
    EXPECT_FALSE(items[0]->isVisible());
    items[4]->trigger();
    EXPECT_EQ(button.text(), "Screen 2");
    EXPECT_EQ(store->arrayForKey("AffectedScreenSet")->size(), 1U);
}

TEST_F(PreferencesWindow, AsksBeforeItClosesWithoutAnEffectThatTheUserTookAway) {
    show();
    controller.window()->close(); // nothing was touched
    EXPECT_FALSE(controller.window()->isVisible());

    controller.showWindow();
    click("invertScreen");
    click("invertScreen");
    controller.window()->close();
    ASSERT_NE(sheet(), nullptr);
    EXPECT_EQ(sheet()->text(), "No effect has been chosen.");
    EXPECT_EQ(sheet()->defaultButton()->text(), "Cancel");
    press(*sheet(), "Cancel");
    EXPECT_TRUE(controller.window()->isVisible());

    controller.window()->close();
    press(*sheet(), "Close anyway");
    EXPECT_FALSE(controller.window()->isVisible());
    controller.showWindow();
    controller.window()->close(); // that was answered
    EXPECT_FALSE(controller.window()->isVisible());
}

TEST_F(PreferencesWindow, HotKeys) {
    show();
    auto& field = find<HXHotKeyTextField>("hotKeyField");
    EXPECT_FALSE(field.isRecording());
    click("useHotKey");
    EXPECT_TRUE(store->boolForKey("UseHotKey"));
    EXPECT_TRUE(field.isRecording());
    click("useHotKey");
    EXPECT_FALSE(field.isRecording());
    EXPECT_THAT(recordings, ElementsAre(true, false));
    EXPECT_EQ(store->integerForKey("HotKeyCode"), 0);

    field.setHotKey(HXHotKey::hotKeyWithKeyCode(96, 0x100000, nullptr));
    controller.changeHotKey(field);
    EXPECT_EQ(store->integerForKey("HotKeyCode"), 96);
    EXPECT_EQ(store->integerForKey("HotKeyModifiers"), 0x100000);
    click("useHotKey");
    EXPECT_FALSE(field.isRecording()); // there is a key to be used
}

TEST_F(PreferencesWindow, EveryControlIsReachedByTheKeyboardInOrder) {
    NDGroupEffect::effect().addEffect("NDDimEffect");
    NDGroupEffect::effect().addEffect("NDColorFilterEffect");
    show();
    box("invertScreen").setFocus();
    std::vector<std::string> order;
    for (int i = 0; i < 40; ++i) {
        QWidget* focus = QApplication::focusWidget();
        while (focus->objectName().isEmpty() || focus->objectName().startsWith(u"qt_")) {
            focus = focus->parentWidget();
        }
        EXPECT_FALSE(focus->toolTip().isEmpty() && focus->objectName() != u"closeButton")
            << focus->objectName().toStdString();
        if (order.empty() || order.back() != focus->objectName().toStdString()) {
            order.push_back(focus->objectName().toStdString());
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        if (QApplication::focusWidget() == &box("invertScreen")) {
            break;
        }
    }
    EXPECT_THAT(order,
                ElementsAre("invertScreen", "hideStripes", "hdtvLuminance", "colorFilter",
                            "colorFilterHue", "colorFilterVividness", "dimScreen", "dimLevel",
                            "affectedScreens", "activateAtLaunch", "activateOnClick",
                            "continuouslyApply", "deactivateForScreenSaver", "useHotKey",
                            "hotKeyField", "showInTaskBar", "previewDisplay", "openButton",
                            "saveButton", "closeButton"));
}

TEST_F(PreferencesWindow, MnemonicsReachSlidersAndButtons) {
    NDGroupEffect::effect().addEffect("NDDimEffect");
    show();
    QTest::keyClick(controller.window(), Qt::Key_L, Qt::AltModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    EXPECT_FLOAT_EQ(NDDimEffect::level(), -0.49F);
    QTest::keyClick(controller.window(), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return controller.window()->findChild<QFileDialog*>() != nullptr; }));
}

class EffectDocuments : public PreferencesWindow {
  protected:
    QString write(const std::string& name, const EffectDocument& written) {
        EXPECT_TRUE(writeEffectDocument(directory.path() / name, written));
        return QString::fromStdString(directory.path() / name);
    }
    TemporaryDirectory directory;
    EffectDocument document{.invertScreen = true,
                            .overexposure = false,
                            .hdtvLuminance = true,
                            .colorFilter = true,
                            .colorFilterHue = 33.3F,
                            .colorFilterVividness = 0.7F,
                            .dim = false,
                            .dimLevel = 0.1F};
};

TEST_F(EffectDocuments, ChangeNothingBeforeTheWindowIsLoaded) {
    EXPECT_TRUE(controller.openEffectFile(write("a.nocturo", document)));
    EXPECT_EQ(NDGroupEffect::effect().effectCount(), 0U);
    EXPECT_FALSE(controller.isWindowLoaded());
    EXPECT_FALSE(controller.openEffectFile(QStringLiteral("/no/such.nocturo")));
}

TEST_F(EffectDocuments, SetEveryControlAndComeBackTheSame) {
    NDGroupEffect::effect().addEffect("NDDimEffect");
    controller.loadWindow();
    EXPECT_TRUE(controller.openEffectFile(write("a.nocturo", document)));
    EXPECT_THAT(effects(),
                ElementsAre("NDInvertEffect", "NDHDTVLuminanceEffect", "NDColorFilterEffect"));
    EXPECT_EQ(NDColorFilterEffect::hue(), 33.3F);
    EXPECT_EQ(NDDimEffect::level(), 0.1F);
    const QString again = QString::fromStdString(directory.path() / "b.nocturo");
    EXPECT_TRUE(controller.writeEffectFile(again));
    EXPECT_EQ(readEffectDocument(again.toStdString()), document);
}

TEST_F(EffectDocuments, AreLimitedByTheSlidersAndAskAgainAtTheEnd) {
    show();
    document = {.colorFilterHue = 400.0F, .colorFilterVividness = -3.0F, .dimLevel = -1.5F};
    EXPECT_TRUE(controller.openEffectFile(write("a.nocturo", document)));
    EXPECT_EQ(NDColorFilterEffect::hue(), 360.0F);
    EXPECT_EQ(NDColorFilterEffect::vividness(), 0.0F);
    EXPECT_EQ(NDDimEffect::level(), -1.0F);
    controller.window()->close();
    EXPECT_NE(sheet(), nullptr); // no effect
}

TEST_F(EffectDocuments, AreRefusedWhole) {
    controller.loadWindow();
    const auto path = directory.path() / "bad.nocturo";
    std::ofstream(path) << "no property list";
    int changes = 0;
    center.addObserver(&changes, NSUserDefaultsDidChangeNotification, [&] { ++changes; });
    EXPECT_FALSE(controller.openEffectFile(QString::fromStdString(path)));
    center.removeObserver(&changes);
    EXPECT_EQ(changes, 0);
}

TEST_F(EffectDocuments, AreDroppedOntoTheWindow) {
    show();
    const auto drop = [&](const QString& path) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(controller.window(), &enter);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(controller.window(), &event);
    };
    drop(write("a.nocturo", document));
    EXPECT_TRUE(box("invertScreen").isChecked());
    drop(QStringLiteral("/no/such.nocturo"));
    ASSERT_NE(sheet(), nullptr);
    EXPECT_EQ(sheet()->informativeText(), "“such.nocturo” is not an effect document.");
}

TEST_F(EffectDocuments, PanelsSaveAndOpen) {
    show();
    click("invertScreen");
    const auto panel = [&](const char* button) {
        click(button);
        auto* found = controller.window()->findChild<QFileDialog*>();
        found->setDirectory(QString::fromStdString(directory.path()));
        return found;
    };
    const auto accept = [](QFileDialog& dialog, const QString& name) {
        auto* field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        field->setText(name);
        QTest::keyClick(field, Qt::Key_Return);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    QFileDialog* save = panel("saveButton");
    for (QCheckBox* hide : save->findChildren<QCheckBox*>()) {
        hide->setChecked(true);
    }
    accept(*save, QStringLiteral("mine"));
    const auto saved = directory.path() / "mine.nocturo";
    ASSERT_TRUE(readEffectDocument(saved));
    EXPECT_TRUE(readEffectDocument(saved)->invertScreen);
    EXPECT_EQ(documentDisplayName(saved), isExtensionHidden(saved) ? "mine" : "mine.nocturo");

    click("invertScreen");
    accept(*panel("openButton"), QStringLiteral("mine.nocturo"));
    EXPECT_TRUE(box("invertScreen").isChecked());

    // Where nothing can be made there is an alert; an old file that cannot be replaced says
    // nothing.
    accept(*panel("saveButton"), QStringLiteral("/proc/mine.nocturo"));
    ASSERT_NE(sheet(), nullptr);
    EXPECT_EQ(sheet()->text(), "Saving failed");
    EXPECT_EQ(sheet()->informativeText(), "Could not save settings at this location.");
}

class KeepColors : public PreferencesWindow {
  protected:
    KeepColors() {
        NDDimEffect::setLevel(-1);
        effectIsOn = true;
    }
};

TEST_F(KeepColors, GoesBackUnlessTheUserKeepsThem) {
    show();
    click("dimScreen");
    ASSERT_NE(sheet(), nullptr);
    EXPECT_EQ(sheet()->text(), "Keep these colors?");
    QTest::keyClick(sheet(), Qt::Key_Escape);
    EXPECT_THAT(effects(), ElementsAre());

    click("dimScreen");
    press(*sheet(), "Keep");
    EXPECT_THAT(effects(), ElementsAre("NDDimEffect"));
    click("activateOnClick"); // not a color
    EXPECT_EQ(sheet(), nullptr);
    click("invertScreen"); // another choice, as unreadable
    ASSERT_NE(sheet(), nullptr);
    press(*sheet(), "Go back");
    EXPECT_THAT(effects(), ElementsAre("NDDimEffect"));
}

TEST_F(KeepColors, AsksOnlyAboutWhatWasDoneInTheWindowAndIsOnEveryScreen) {
    show();
    NDGroupEffect::effect().addEffect("NDDimEffect");
    EXPECT_EQ(sheet(), nullptr);
    NDGroupEffect::effect().removeEffect("NDDimEffect");
    effectIsOn = false;
    click("dimScreen");
    EXPECT_EQ(sheet(), nullptr);
}

TEST_F(KeepColors, AnswersItselfWhenTimeIsUpAndNotOverSomebodyElse) {
    QWidget window;
    window.show();
    bool unreadable = true;
    KeepColorsQuestion question(
        window, [&] { return unreadable; }, std::chrono::milliseconds(1));
    for (const bool somebodyElseChanged : {false, true}) {
        NDDimEffect::setLevel(0);
        const ScreenColors before = currentScreenColors();
        NDDimEffect::setLevel(-1);
        question.colorsDidChange(before);
        if (somebodyElseChanged) {
            NDDimEffect::setLevel(-0.25F);
        }
        EXPECT_TRUE(QTest::qWaitFor([&] {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return window.findChild<QMessageBox*>() == nullptr;
        }));
        EXPECT_EQ(NDDimEffect::level(), somebodyElseChanged ? -0.25F : 0.0F);
    }
}

} // namespace
} // namespace nocturo
