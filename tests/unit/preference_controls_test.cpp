#include "preferences/controls/parameter_slider.h"
#include "preferences/preview/effect_preview.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <bit>
#include <limits>

namespace nocturo {
namespace {

class ParameterRow : public testing::Test {
  protected:
    ParameterRow() {
        auto* box = new QVBoxLayout(&window);
        auto* label = new QLabel("&Dim:");
        label->setBuddy(row);
        box->addWidget(label);
        box->addWidget(row);
        row->setRange(-1, 1);
        row->setDefaultValue(-0.5);
        row->setDisplayScale(100);
        row->setDecimals(0);
        row->setSuffix(" %");
        QObject::connect(row, &ParameterSlider::valueChangedByUser, &window,
                         [this](float value) { steps.push_back(value); });
        window.resize(500, 100);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        slider = row->findChild<RealSlider*>();
        field = row->findChild<QLineEdit*>();
        row->setFocus();
    }
    void wheel(int angle) {
        const QPointF middle(slider->rect().center());
        QWheelEvent event(middle, slider->mapToGlobal(middle), {}, {0, angle}, {}, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(slider, &event);
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
    RealSlider* slider = nullptr;
    QLineEdit* field = nullptr;
    std::vector<float> steps;
};

TEST_F(ParameterRow, KeepsEveryBitAndTellsNobodyWhatWasSet) {
    const float tiny = std::numeric_limits<float>::denorm_min();
    for (const float value : {0.1F, -0.33333334F, 0.1F + 1e-7F, tiny, -0.0F, 1.0F}) {
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
    wheel(120);
    EXPECT_EQ(row->value(), -0.97F);
    wheel(20); // half a line; the other half follows
    EXPECT_EQ(row->value(), -0.97F);
    wheel(20);
    EXPECT_EQ(row->value(), -0.96F);
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
    row->setLayoutDirection(Qt::RightToLeft);
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(row->value(), 0.99F) << "right is less in a mirrored row";
}

TEST_F(ParameterRow, ADragLosesNoStepAndAPressAloneChangesNothing) {
    row->setValue(0.123456F);
    const double width = slider->width();
    const double handle = width / 2 + 0.123456 * width / 2 - 1;
    mouse(QEvent::MouseButtonPress, handle);
    EXPECT_THAT(steps, testing::IsEmpty());
    mouse(QEvent::MouseButtonRelease, handle);
    mouse(QEvent::MouseButtonPress, width * 0.1);
    steps.clear();
    for (int i = 1; i <= 1000; ++i) {
        mouse(QEvent::MouseMove, width * (0.1 + 0.0008 * i));
        ASSERT_EQ(steps.size(), static_cast<std::size_t>(i));
    }
    EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
    EXPECT_EQ(steps.back(), row->value());
    EXPECT_NEAR(row->value(), 0.8, 0.06);
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

PreviewCurves curvesFromTo(const ZQChannelValues& black, const ZQChannelValues& white) {
    PreviewCurves curves;
    for (ZQGammaCurve* curve : {&curves.before, &curves.after}) {
        curve->sampleCount = 256;
        for (std::size_t i = 0; i < 256; ++i) {
            const float input = static_cast<float>(i) / 255.0F;
            const bool own = curve == &curves.before;
            const auto at = [&](std::size_t c) {
                return own ? input : black[c] + (white[c] - black[c]) * input;
            };
            curve->redTable[i] = at(0);
            curve->greenTable[i] = at(1);
            curve->blueTable[i] = at(2);
        }
    }
    return curves;
}

int pixelsOf(const QImage& image, QRgb color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixel(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

QImage drawn(const PreviewCurves& curves, double ratio = 1) {
    QPalette grey; // nothing of the plot or its surroundings is pure red or cyan
    grey.setColor(QPalette::Window, QColor(0xee, 0xee, 0xee));
    return renderEffectPreview(curves, {480, 220}, ratio, grey);
}

TEST(EffectPreviewDrawing, ShowsThePictureAsTheDisplayWill) {
    const auto plain = drawn(curvesFromTo({0, 0, 0}, {1, 1, 1}));
    auto inverted = curvesFromTo({1, 1, 1}, {0, 0, 0});
    const auto negative = drawn(inverted);
    // The red patch turns into a cyan one where it is, and the cyan one into a red one.
    int exchanged = 0;
    for (int x = 240; x < 480; ++x) {
        for (int y = 0; y < 220; ++y) {
            if (plain.pixel(x, y) == 0xffff0000) {
                ASSERT_EQ(negative.pixel(x, y), 0xff00ffff) << x << ' ' << y;
                ++exchanged;
            }
        }
    }
    EXPECT_GT(exchanged, 200);
    inverted.seenThrough = inverted.after; // the screen turns it around by itself
    EXPECT_EQ(pixelsOf(drawn(inverted), 0xffff0000), pixelsOf(plain, 0xffff0000));
    const auto red = drawn(curvesFromTo({0, 0, 0}, {1, 0, 0}));
    EXPECT_EQ(pixelsOf(red, 0xff00ffff), 0);
    EXPECT_EQ(drawn(inverted, 2).size(), QSize(960, 440));
}

TEST(EffectPreviewDrawing, MarksWhatIsClippedAndOnlyThat) {
    const QRgb mark = 0xffe06c00;
    EXPECT_EQ(pixelsOf(drawn(curvesFromTo({0, 0, 0}, {1, 1, 1})), mark), 0);
    EXPECT_EQ(pixelsOf(drawn(curvesFromTo({0, 0, 0}, {1, 0, 0})), mark), 0) << "removed, not cut";
    EXPECT_GT(pixelsOf(drawn(curvesFromTo({0, 0, 0}, {1.3F, 1.3F, 1.3F})), mark), 20);
    EXPECT_GT(pixelsOf(drawn(curvesFromTo({-0.3F, 0, 0}, {1, 1, 1})), mark), 20);
}

TEST(EffectPreviewDrawing, IsDescribedInWords) {
    EffectPreview preview;
    preview.setDisplayName("Screen 1");
    const auto heard = [&] {
        return QAccessible::queryAccessibleInterface(&preview)->text(QAccessible::Description);
    };
    preview.setCurves(curvesFromTo({0.6F, 0.3F, 0.3F}, {0, 0, 0}));
    // 0.2126 of 0.6 and the rest of 0.3
    EXPECT_EQ(heard(), "Screen 1: brightness from 0 % to 36 %, inverted, red strongest");
    preview.setCurves(curvesFromTo({0, 0, 0}, {1.2F, 1.2F, 0}));
    EXPECT_EQ(heard(), "Screen 1: brightness from 0 % to 93 %, red and green strongest, "
                       "bright tones clipped");
    preview.setCurves({});
    EXPECT_EQ(heard(), "Screen 1: The colors of this screen cannot be changed.");
}

} // namespace
} // namespace nocturo
