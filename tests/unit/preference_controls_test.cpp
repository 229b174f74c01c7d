#include "preferences/controls/parameter_slider.h"

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
    RealSlider* slider = nullptr;
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

} // namespace
} // namespace nocturo
