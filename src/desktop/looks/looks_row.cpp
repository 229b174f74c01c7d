#include "desktop/looks/looks_row.h"

#include "desktop/mixed_color.h"
#include "desktop/preview/effect_preview.h"
#include "documents/current_effects.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace nocturo {

namespace {

constexpr int kMargin = 5;
constexpr int kFrame = 3; // around the picture of the look in force

// Of a picture, in lines of text.
constexpr double kHeight = 4.2;
constexpr double kTightHeight = 2.1;

bool isPickingKey(int key) {
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// A look in its row.
class LookDelegate : public QStyledItemDelegate {
  public:
    explicit LookDelegate(LooksRow& row) : QStyledItemDelegate(&row), row_(row) {}

    QSize sizeHint(const QStyleOptionViewItem& /*option*/,
                   const QModelIndex& /*index*/) const override {
        return row_.tileSize();
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        painter->save();
        const QPalette& palette = option.palette;
        const QSize size = row_.pictureSize();
        const QRect place(option.rect.center().x() - size.width() / 2, option.rect.top() + kMargin,
                          size.width(), size.height());
        const double ratio = painter->device()->devicePixelRatioF();
        QImage picture = row_.picture(index.row(), (QSizeF(size) * ratio).toSize());
        picture.setDevicePixelRatio(ratio);
        painter->drawImage(place.topLeft(), picture);
        const bool isInForce = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        const bool isPointedAt = (option.state & QStyle::State_MouseOver) != 0;
        if (isInForce || isPointedAt) {
            painter->setPen(QPen(palette.color(isInForce ? QPalette::Highlight : QPalette::Mid),
                                 kFrame, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
            painter->drawRect(QRectF(place).adjusted(-1.5, -1.5, 1.5, 1.5));
        } else {
            painter->setPen(
                mixedColor(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.4F));
            painter->drawRect(QRectF(place).adjusted(-0.5, -0.5, 0.5, 0.5));
        }
        paintTitle(*painter, option, index, place, isInForce);
        painter->restore();
    }

  protected:
    /// The tick tells which look is in force; the row does what is clicked.
    bool editorEvent(QEvent* /*event*/, QAbstractItemModel* /*model*/,
                     const QStyleOptionViewItem& /*option*/,
                     const QModelIndex& /*index*/) override {
        return false;
    }

  private:
    static void paintTitle(QPainter& painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index, const QRect& picture, bool isInForce) {
        QFont font = option.font;
        font.setBold(isInForce);
        const QRect place(option.rect.left() + 1, picture.bottom() + kMargin,
                          option.rect.width() - 2, option.fontMetrics.height());
        const QString title =
            QFontMetrics(font).elidedText(index.data().toString(), Qt::ElideRight, place.width());
        painter.setFont(font);
        painter.setPen(option.palette.color(QPalette::Text));
        painter.drawText(place, Qt::AlignCenter, title);
        if ((option.state & QStyle::State_HasFocus) != 0) {
            QStyleOptionFocusRect focus;
            focus.initFrom(option.widget);
            focus.state |= QStyle::State_KeyboardFocusChange;
            focus.rect = place; // some styles fill it, which would tint the picture
            focus.backgroundColor = option.palette.color(QPalette::Base);
            QApplication::style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter,
                                                 option.widget);
        }
    }

    LooksRow& row_;
};

} // namespace

LooksRow::LooksRow(QWidget* parent) : QListWidget(parent) {
    setFlow(QListView::LeftToRight);
    setWrapping(false);
    setUniformItemSizes(true);
    setMouseTracking(true);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setItemDelegate(new LookDelegate(*this));
    connect(this, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* item) { pick(*item); });
}

void LooksRow::setLooks(const std::vector<Look>& looks) {
    endDrag();
    const Look* current = currentLook();
    const std::string before = current != nullptr ? current->name : std::string();
    looks_ = looks;
    pictures_.assign(looks_.size(), {});
    clear();
    for (const Look& look : looks_) {
        auto* item = new QListWidgetItem(QString::fromStdString(look.title), this);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
        item->setToolTip(item->text());
    }
    setCurrentLook(before);
    makeRoomForBar();
}

void LooksRow::setCurrentLook(const std::string& name) {
    const auto found = std::ranges::find(looks_, name, &Look::name);
    if (found != looks_.end()) {
        setCurrentRow(static_cast<int>(found - looks_.begin()));
    }
}

void LooksRow::setInForce(const std::string& name) {
    for (std::size_t row = 0; row < looks_.size(); ++row) {
        const auto state = looks_[row].name == name ? Qt::Checked : Qt::Unchecked;
        QListWidgetItem& look = *item(static_cast<int>(row));
        if (look.checkState() != state) {
            look.setCheckState(state);
        }
    }
}

void LooksRow::setCurves(const PreviewCurves& curves) {
    curves_ = curves;
    pictures_.assign(looks_.size(), {});
    viewport()->update();
}

const Look* LooksRow::currentLook() const {
    return currentRow() < 0 ? nullptr : &looks_[static_cast<std::size_t>(currentRow())];
}

const QImage& LooksRow::picture(int row, QSize pixels) {
    const auto place = static_cast<std::size_t>(row);
    QImage& picture = pictures_[place];
    if (picture.size() != pixels && wasPainted_) {
        PreviewCurves curves = curves_;
        curves.after = curves.before;
        applyEffects(looks_[place].effects, curves.after);
        picture = pictureThrough(curves, pixels);
    }
    return picture;
}

QSize LooksRow::minimumSizeHint() const {
    return {leastTileWidth() * 3, sizeHint().height()};
}

QSize LooksRow::sizeHint() const {
    return {(leastTileWidth() + fontMetrics().height()) * std::clamp(count(), 1, 6) +
                2 * frameWidth(),
            tileSize().height() + 2 * frameWidth() +
                (scrolls_ ? horizontalScrollBar()->sizeHint().height() : 0)};
}

void LooksRow::pick(const QListWidgetItem& item) {
    Q_EMIT picked(QString::fromStdString(looks_[static_cast<std::size_t>(row(&item))].name));
}

QSize LooksRow::pictureSize() const {
    const int height =
        static_cast<int>(std::lround(fontMetrics().height() * (isTight_ ? kTightHeight : kHeight)));
    return {static_cast<int>(std::lround(height * kPictureShape)), height};
}

int LooksRow::leastTileWidth() const {
    return pictureSize().width() + 2 * kMargin;
}

/// Titles have the room that there is; the row scrolls only once the pictures have none.
QSize LooksRow::tileSize() const {
    const int share = viewport()->width() / std::max(count(), 1);
    const int widest = QFontMetrics(font()).height() * 8;
    return {std::clamp(share, leastTileWidth(), std::max(widest, leastTileWidth())),
            pictureSize().height() + 3 * kMargin + fontMetrics().height()};
}

void LooksRow::setTight(bool isTight) {
    isTight_ = isTight;
    scheduleDelayedItemsLayout();
    makeRoomForBar();
    updateGeometry();
}

void LooksRow::makeRoomForBar() {
    const bool scrolls = leastTileWidth() * count() > width() - 2 * frameWidth();
    if (std::exchange(scrolls_, scrolls) != scrolls) {
        updateGeometry();
    }
}

void LooksRow::changeEvent(QEvent* event) {
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        setTight(isTight_);
    }
}

void LooksRow::resizeEvent(QResizeEvent* event) {
    QListWidget::resizeEvent(event);
    scheduleDelayedItemsLayout();
    makeRoomForBar();
}

/// Qt tells screen readers of the row alone, and of a look only once it is another.
void LooksRow::focusInEvent(QFocusEvent* event) {
    QListWidget::focusInEvent(event);
    QTimer::singleShot(0, this, [this] {
        if (hasFocus() && currentRow() >= 0) {
            QAccessibleEvent arrival(this, QAccessible::Focus);
            arrival.setChild(currentRow());
            QAccessible::updateAccessibility(&arrival);
        }
    });
}

void LooksRow::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const auto modifiers = event->modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    const bool isPlain = modifiers == Qt::NoModifier;
    const bool isArrow = key == Qt::Key_Left || key == Qt::Key_Right;
    if (currentItem() != nullptr && isPlain && key == Qt::Key_F2) {
        Q_EMIT renameWanted();
    } else if (currentItem() != nullptr && isPlain && key == Qt::Key_Delete) {
        Q_EMIT removalWanted();
    } else if (currentItem() != nullptr && isPlain && isPickingKey(key)) {
        pick(*currentItem());
    } else if (currentItem() != nullptr && modifiers == Qt::AltModifier && isArrow) {
        Q_EMIT moveWanted((key == Qt::Key_Right) != isRightToLeft() ? 1 : -1);
    } else {
        QListWidget::keyPressEvent(event);
    }
}

// Dragged by hand: Qt's own way runs a loop of its own until the button is let go.

void LooksRow::mousePressEvent(QMouseEvent* event) {
    pressedAt_ = event->pos();
    QListWidget::mousePressEvent(event);
}

void LooksRow::mouseMoveEvent(QMouseEvent* event) {
    const QPoint way = event->pos() - pressedAt_;
    const QListWidgetItem* pressed = itemAt(pressedAt_);
    const bool mayStart = event->buttons() == Qt::LeftButton && pressed != nullptr && count() > 1 &&
                          way.manhattanLength() >= QApplication::startDragDistance();
    if (dragged_ < 0 && mayStart) {
        dragged_ = row(pressed);
        setCurrentRow(dragged_);
        viewport()->setCursor(Qt::ClosedHandCursor);
    }
    if (dragged_ < 0) {
        QListWidget::mouseMoveEvent(event);
        return;
    }
    gap_ = gapAt(event->pos());
    const QRect seen = viewport()->rect();
    const int beyond = std::min(event->pos().x() - seen.left() - tileSize().width() / 4, 0) +
                       std::max(event->pos().x() - seen.right() + tileSize().width() / 4, 0);
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() +
                                    (isRightToLeft() ? -beyond : beyond) / 2);
    viewport()->update();
}

void LooksRow::mouseReleaseEvent(QMouseEvent* event) {
    if (dragged_ < 0) {
        QListWidget::mouseReleaseEvent(event);
        return;
    }
    const int places = gap_ < 0 ? 0 : gap_ - dragged_ - (gap_ > dragged_ ? 1 : 0);
    endDrag();
    if (places != 0) {
        Q_EMIT moveWanted(places);
    }
}

void LooksRow::endDrag() {
    dragged_ = gap_ = -1;
    viewport()->unsetCursor();
    viewport()->update();
}

/// Away from the row none, so that one may think better of it.
int LooksRow::gapAt(QPoint point) const {
    if (point.y() < -height() || point.y() > 2 * height()) {
        return -1;
    }
    int gap = 0;
    while (gap < count()) {
        const int middle = visualItemRect(item(gap)).center().x();
        if (isRightToLeft() ? point.x() > middle : point.x() < middle) {
            break;
        }
        ++gap;
    }
    return gap;
}

void LooksRow::paintGap() {
    QPainter painter(viewport());
    const bool isLast = gap_ == count();
    const QRect beside = visualItemRect(item(isLast ? gap_ - 1 : gap_));
    const int x = isLast == isRightToLeft() ? beside.left() : beside.right() - kFrame + 1;
    painter.fillRect(QRect(x, beside.top() + kMargin, kFrame, beside.height() - 2 * kMargin),
                     palette().color(QPalette::Highlight));
}

void LooksRow::paintEvent(QPaintEvent* event) {
    QListWidget::paintEvent(event);
    if (gap_ >= 0) {
        paintGap();
    }
    if (!wasPainted_) {
        QTimer::singleShot(0, this, [this] {
            wasPainted_ = true;
            viewport()->update();
        });
    }
}

} // namespace nocturo
