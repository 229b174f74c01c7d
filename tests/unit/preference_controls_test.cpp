// What the preference window is made of: its sliders, and what it tells of a curve.

#include "desktop/controls/parameter_slider.h"
#include "desktop/preview/effect_preview.h"
#include "displays/readability.h"

#include <gmock/gmock.h>

#include <QTest>
#include <QtWidgets>

#include <algorithm>
#include <bit>
#include <limits>

using namespace nocturo;

struct ParameterRow : testing::Test {
    ParameterRow() {
        auto* box = new QVBoxLayout(&window);
        auto* label = new QLabel("&Dim:");
        label->setBuddy(row);
        box->addWidget(label);
        box->addWidget(row);
        row->setParameter({.minimum = -1, .defaultValue = -0.5, .scale = 100, .unit = " %"});
        QObject::connect(row, &ParameterSlider::valueChangedByUser, &window,
                         [this](float value) { steps.push_back(value); });
        window.resize(500, 100);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        slider = row->findChild<QSlider*>();
        field = row->findChild<QLineEdit*>();
    }
    float afterWheel(int angle) {
        const QPointF middle(slider->rect().center());
        QWheelEvent event(middle, slider->mapToGlobal(middle), {}, {0, angle}, {}, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(slider, &event);
        return row->value();
    }
    void mouse(QEvent::Type type, double x) {
        const QPointF at(x, slider->height() / 2.0);
        QMouseEvent event(type, at, slider->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(slider, &event);
    }
    void typeNumber(const char* text) {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
    }

    QWidget window;
    ParameterSlider* row = new ParameterSlider;
    QSlider* slider = nullptr;
    QLineEdit* field = nullptr;
    std::vector<float> steps;
};

TEST_F(ParameterRow, KeepsEveryBitAndTellsNobodyWhatWasSet) {
    for (const float value :
         {0.1F, -0.33333334F, std::numeric_limits<float>::denorm_min(), -0.0F}) {
        row->setValue(value);
        EXPECT_EQ(std::bit_cast<std::uint32_t>(row->value()), std::bit_cast<std::uint32_t>(value));
    }
    row->setValue(-7);
    EXPECT_EQ(row->value(), -1.0F);
    row->setValue(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(row->value(), 0.0F);
    row->setValue(-0.33333334F);
    typeNumber("-33"); // what is shown already
    EXPECT_EQ(row->value(), -0.33333334F);
    EXPECT_THAT(steps, testing::IsEmpty());
}

TEST_F(ParameterRow, TakesKeysTheWheelADoubleClickAndNumbers) {
    row->setValue(-0.02F);
    for (const auto& [key, value] :
         {std::pair(Qt::Key_Right, -0.01F), std::pair(Qt::Key_Up, 0.0F),
          std::pair(Qt::Key_PageUp, 0.1F), std::pair(Qt::Key_Left, 0.09F),
          std::pair(Qt::Key_End, 1.0F), std::pair(Qt::Key_PageDown, 0.9F),
          std::pair(Qt::Key_Home, -1.0F)}) {
        QTest::keyClick(slider, key);
        EXPECT_EQ(row->value(), value) << key;
    }
    EXPECT_EQ(afterWheel(120), -0.97F);
    EXPECT_EQ(afterWheel(20), -0.97F); // half a line; the other half follows
    EXPECT_EQ(afterWheel(20), -0.96F);
    QTest::mouseDClick(slider, Qt::LeftButton);
    EXPECT_EQ(row->value(), -0.5F);
    for (const auto& [text, value, shown] :
         {std::tuple("25", 0.25F, u"25 %"), std::tuple("-7.5 %", -0.075F, u"−8 %"),
          std::tuple("900", 1.0F, u"100 %"), std::tuple("nan", 1.0F, u"100 %"),
          std::tuple("12x", 1.0F, u"100 %")}) {
        typeNumber(text);
        EXPECT_EQ(row->value(), value) << text;
        EXPECT_EQ(field->text(), QString::fromUtf16(shown));
    }
    EXPECT_EQ(steps.back(), 1.0F);
    field->selectAll();
    QTest::keyClicks(field, "5");
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(field->text(), "100 %") << "never mind";
    row->setLayoutDirection(Qt::RightToLeft);
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(row->value(), 0.99F) << "right is less in a mirrored row";
}

TEST_F(ParameterRow, ADragLosesNoStepAndAPressAloneChangesNothing) {
    row->setValue(0.123456F);
    const double width = slider->width();
    mouse(QEvent::MouseButtonPress, width / 2 * 1.123456 - 1);
    EXPECT_THAT(steps, testing::IsEmpty());
    for (int i = 1; i <= 1000; ++i) {
        mouse(QEvent::MouseMove, width * (0.6 + 0.0002 * i));
    }
    EXPECT_EQ(steps.size(), 1000U);
    EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
    EXPECT_NEAR(row->value(), 0.6, 0.06);
    mouse(QEvent::MouseMove, width / 2 + 2);
    EXPECT_NE(row->value(), 0.0F);
    row->setParameter({.minimum = -1, .track = TrackSlider::Track::Middle});
    mouse(QEvent::MouseMove, width / 2 + 1);
    EXPECT_EQ(row->value(), 0.0F) << "the marked middle catches";
    mouse(QEvent::MouseMove, width / 2 + 6);
    EXPECT_NE(row->value(), 0.0F);
    mouse(QEvent::MouseButtonRelease, width / 2 + 6);
    EXPECT_FALSE(slider->isSliderDown());
}

TEST_F(ParameterRow, TellsScreenReadersItsNameAndItsShownValue) {
    row->setValue(-0.5F);
    auto* heard = QAccessible::queryAccessibleInterface(slider);
    EXPECT_EQ(heard->role(), QAccessible::Slider);
    EXPECT_EQ(heard->text(QAccessible::Name), "Dim");
    EXPECT_EQ(heard->text(QAccessible::Value), u"−50 %");
    EXPECT_EQ(heard->valueInterface()->currentValue().toDouble(), -50.0);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(field)->text(QAccessible::Name), "Dim");
}

ZQGammaCurve straight(const ZQChannelValues& from, const ZQChannelValues& to) {
    ZQGammaCurve curve;
    curve.sampleCount = 256;
    const std::array tables{&curve.redTable, &curve.greenTable, &curve.blueTable};
    for (std::size_t channel = 0; channel < tables.size(); ++channel) {
        for (std::size_t i = 0; i < 256; ++i) {
            (*tables[channel])[i] =
                from[channel] + (to[channel] - from[channel]) * static_cast<float>(i) / 255.0F;
        }
    }
    return curve;
}

TEST(Readability, IsWhatTheHardwareLeavesOfTheRange) {
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    using Case = std::tuple<ZQChannelValues, ZQChannelValues, double, bool>;
    for (const auto& [black, white, contrast, unreadable] : {
             Case{{0, 0, 0}, {1, 1, 1}, 1.0, false},
             Case{{1, 1, 1}, {0, 0, 0}, 1.0, false},
             Case{{-0.1F, -0.1F, -0.1F}, {1.1F, 1.1F, 1.1F}, 1.0, false},
             Case{{0, 0, 0}, {0, 0, 0}, 0.0, true},
             Case{{1.5F, 1.5F, 1.5F}, {9, 9, 9}, 0.0, true},
             Case{{kNan, kNan, kNan}, {kNan, kNan, kNan}, 0.0, true},
             Case{{0, 0, 0}, {0.13F, 0.13F, 0.13F}, 0.13, false},
             Case{{0.88F, 0.88F, 0.88F}, {1, 1, 1}, 0.12, true},
             // 0.0722 and 0.2126 of the light; their 2.2nd roots
             Case{{0, 0, 0}, {0, 0, 1}, 0.3028, false},
             Case{{0, 0, 0}, {1, 0, 0}, 0.4947, false},
         }) {
        SCOPED_TRACE(testing::PrintToString(black) + " to " + testing::PrintToString(white));
        const auto curve = straight(black, white);
        EXPECT_NEAR(remainingContrast(curve), contrast, 0.0005);
        EXPECT_EQ(isUnreadable(curve), unreadable);
    }
    EXPECT_FALSE(isUnreadable({})) << "a display without a usable ramp is not judged";
}

PreviewCurves changedTo(const ZQChannelValues& black, const ZQChannelValues& white) {
    PreviewCurves curves;
    curves.before = straight({0, 0, 0}, {1, 1, 1});
    curves.after = straight(black, white);
    return curves;
}

TEST(EffectPreview, DrawsWhatTheScreenDoesNotDoItself) {
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    PreviewCurves curves = changedTo({1, 1, kNan}, {0, 0, kNan});
    auto levels = pictureLevels(curves);
    EXPECT_EQ(levels[0][0], 255);
    EXPECT_EQ(levels[2][255], 0) << "what is no number is black";
    curves.seenThrough = curves.after;
    levels = pictureLevels(curves);
    EXPECT_EQ(levels[0][0], 0) << "a negative of a negative";
    EXPECT_EQ(levels[1][200], 200);
}

TEST(EffectPreview, IsDescribedInWords) {
    EffectPreview preview;
    preview.setDisplayName("Screen 1");
    const auto heard = [&](const PreviewCurves& curves) {
        preview.setCurves(curves);
        return QAccessible::queryAccessibleInterface(&preview)->text(QAccessible::Description);
    };
    // 0.2126 of 0.6 and the rest of 0.3
    EXPECT_EQ(heard(changedTo({0.6F, 0.3F, 0.3F}, {0, 0, 0})),
              "Screen 1: brightness from 0 % to 36 %, inverted, red strongest");
    EXPECT_EQ(heard(changedTo({0, 0, 0}, {1.2F, 1.2F, 0})),
              "Screen 1: brightness from 0 % to 93 %, red and green strongest, "
              "bright tones clipped");
    EXPECT_EQ(heard({}), "Screen 1: The colors of this screen cannot be changed.");
}
