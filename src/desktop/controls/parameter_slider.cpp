#include "desktop/controls/parameter_slider.h"

#include "desktop/mixed_color.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOptionFrame>

#include <algorithm>
#include <bit>
#include <cstdint>

namespace nocturo {

namespace {

/// Styles draw disabled text too faint to be read. What an effect is set to is worth reading while
/// it is off.
constexpr float kDisabledInk = 0.62F;

bool isSameToTheBit(float left, float right) {
    return std::bit_cast<std::uint32_t>(left) == std::bit_cast<std::uint32_t>(right);
}

} // namespace

ParameterSlider::ParameterSlider(QWidget* parent)
    : QWidget(parent), slider_(new RealSlider(this)), field_(new QLineEdit(this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(slider_, 1);
    row->addWidget(field_);
    field_->setAlignment(Qt::AlignRight);
    field_->installEventFilter(this);
    setFocusProxy(slider_);
    setFocusPolicy(slider_->focusPolicy()); // or a label would not give the focus to its buddy
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(slider_, &RealSlider::moved, this, &ParameterSlider::userMoved);
    connect(field_, &QLineEdit::editingFinished, this, &ParameterSlider::takeTypedNumber);
    numberText_.locale = locale();
    fitField();
    tintField();
}

void ParameterSlider::setRange(double minimum, double maximum) {
    slider_->setRealRange(minimum, maximum);
    fitField();
}

void ParameterSlider::setDefaultValue(double value) {
    slider_->setDefaultValue(value);
}

void ParameterSlider::setStep(double single, double page) {
    slider_->setRealSteps(single, page);
}

void ParameterSlider::setMarkedMiddle(bool marked) {
    slider_->setMarkedMiddle(marked);
    numberText_.withSign = marked;
    fitField();
}

void ParameterSlider::setTrack(Track track) {
    slider_->setTrack(track);
}

void ParameterSlider::setDisplayScale(double scale) {
    numberText_.scale = scale;
    fitField();
}

void ParameterSlider::setDecimals(int decimals) {
    numberText_.decimals = decimals;
    fitField();
}

void ParameterSlider::setSuffix(const QString& suffix) {
    numberText_.suffix = suffix;
    fitField();
}

float ParameterSlider::value() const {
    return slider_->realValue();
}

void ParameterSlider::setValue(float value) {
    const float before = slider_->realValue();
    slider_->setRealValue(value);
    if (!isSameToTheBit(before, slider_->realValue())) {
        slider_->update();
        showValue();
    }
}

void ParameterSlider::userMoved(float value) {
    showValue();
    Q_EMIT valueChangedByUser(value);
}

void ParameterSlider::takeTypedNumber() {
    if (!field_->isModified()) {
        return;
    }
    const auto typed = numberText_.read(field_->text());
    // What is shown is rounded: the same number again leaves the value as it is.
    const auto shown = numberText_.read(numberText_.written(static_cast<double>(value())));
    const bool isNew = typed && typed != shown;
    showValue();
    if (isNew) {
        slider_->moveTo(*typed);
    }
}

void ParameterSlider::showValue() {
    field_->setText(numberText_.written(static_cast<double>(value())));
    if (field_->hasFocus()) {
        field_->selectAll();
    }
}

/// Wide enough for its longest number, and not less than most need, so that the fields and tracks
/// of several rows stand flush.
void ParameterSlider::fitField() {
    slider_->setNumberText(numberText_);
    int text = field_->fontMetrics().horizontalAdvance(QStringLiteral("+000 %"));
    for (const double value : {slider_->realMinimum(), slider_->realMaximum()}) {
        text = std::max(text, field_->fontMetrics().horizontalAdvance(numberText_.written(value)));
    }
    ensurePolished();
    QStyleOptionFrame option;
    option.initFrom(field_);
    option.lineWidth = field_->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, field_);
    const QSize contents(text + field_->fontMetrics().averageCharWidth() * 2, 0);
    field_->setFixedWidth(
        field_->style()->sizeFromContents(QStyle::CT_LineEdit, &option, contents, field_).width());
    // A sign that comes first in a left-to-right language stays first in a mirrored window.
    if (locale().textDirection() == Qt::LeftToRight) {
        field_->setLayoutDirection(Qt::LeftToRight);
    } else {
        field_->unsetLayoutDirection();
    }
    showValue();
}

void ParameterSlider::tintField() {
    QPalette colors = palette();
    colors.setColor(QPalette::Disabled, QPalette::Text,
                    mixedColor(colors.color(QPalette::Disabled, QPalette::Base),
                               colors.color(QPalette::Active, QPalette::Text), kDisabledInk));
    field_->setPalette(colors);
}

/// A label names its buddy; what has the focus are the parts.
void ParameterSlider::nameParts() {
    const auto* described = QAccessible::queryAccessibleInterface(this);
    if (described == nullptr) {
        return;
    }
    QString name = described->text(QAccessible::Name);
    if (name.endsWith(QLatin1Char(':'))) {
        name.chop(1);
    }
    for (QWidget* part : {static_cast<QWidget*>(slider_), static_cast<QWidget*>(field_)}) {
        if (part->accessibleName() != name) {
            part->setAccessibleName(name);
        }
    }
}

bool ParameterSlider::fieldTakesKey(QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        takeTypedNumber();
        QCoreApplication::sendEvent(slider_, &event);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!field_->isModified()) {
            return false; // the window's default button
        }
        takeTypedNumber();
        return true;
    case Qt::Key_Escape:
        if (!field_->isModified()) {
            return false;
        }
        showValue();
        return true;
    default:
        return false;
    }
}

bool ParameterSlider::eventFilter(QObject* watched, QEvent* event) {
    if (watched == field_ && event->type() == QEvent::KeyPress) {
        return fieldTakesKey(*static_cast<QKeyEvent*>(event));
    }
    return QWidget::eventFilter(watched, event);
}

void ParameterSlider::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::PaletteChange:
        tintField();
        break;
    case QEvent::LocaleChange:
        numberText_.locale = locale();
        fitField();
        break;
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        fitField();
        break;
    case QEvent::LanguageChange:
        nameParts();
        break;
    default:
        break;
    }
}

void ParameterSlider::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    nameParts();
}

} // namespace nocturo
