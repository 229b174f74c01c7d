#include "desktop/about/about_box_views.h"

#include <QDesktopServices>
#include <QEvent>
#include <QImage>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QUrl>
#include <QWindow>

namespace nocturo {

namespace {

QColor& sharedColor() {
    static QColor color = QColor::fromRgbF(0.9F, 0.9F, 0.9F);
    return color;
}

QColor halfWayToWhite(const QColor& color) {
    const auto half = [](float channel) { return (channel + 1.0F) / 2.0F; };
    return QColor::fromRgbF(half(color.redF()), half(color.greenF()), half(color.blueF()),
                            half(color.alphaF()));
}

} // namespace

QColor ZQAboutBoxBackgroundColor() {
    return sharedColor();
}

void ZQSetAboutBoxBackgroundColor(const QColor& color) {
    sharedColor() = color;
}

void WindowDrag::press(const QMouseEvent& event, QWidget& widget) {
    if (event.button() != Qt::LeftButton) {
        return;
    }
    QWidget* window = widget.window();
    if (window->windowHandle() == nullptr || !window->windowHandle()->startSystemMove()) {
        grip_ = event.globalPosition().toPoint() - window->frameGeometry().topLeft();
    }
}

void WindowDrag::move(const QMouseEvent& event, QWidget& widget) const {
    if (grip_) {
        widget.window()->move(event.globalPosition().toPoint() - *grip_);
    }
}

ZQAboutBoxBackground::ZQAboutBoxBackground(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

bool ZQAboutBoxBackground::event(QEvent* event) {
    // A window tells its activation to itself alone; it is another one after a move.
    if ((event->type() == QEvent::ParentChange || event->type() == QEvent::Show) &&
        observedWindow_ != window()) {
        if (observedWindow_) {
            observedWindow_->removeEventFilter(this);
        }
        observedWindow_ = window();
        observedWindow_->installEventFilter(this);
        update();
    }
    return QWidget::event(event);
}

bool ZQAboutBoxBackground::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ActivationChange) {
        update();
    }
    return QWidget::eventFilter(watched, event);
}

void ZQAboutBoxBackground::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QColor grey = ZQAboutBoxBackgroundColor();
    if (!isActiveWindow()) {
        painter.fillRect(event->rect(), halfWayToWhite(grey));
        return;
    }
    QLinearGradient gradient(0, 0, 0, height());
    gradient.setColorAt(0, Qt::white);
    gradient.setColorAt(1, grey);
    painter.fillRect(rect(), gradient);
}

void ZQAboutBoxBackground::mousePressEvent(QMouseEvent* event) {
    drag_.press(*event, *this);
}
void ZQAboutBoxBackground::mouseMoveEvent(QMouseEvent* event) {
    drag_.move(*event, *this);
}
void ZQAboutBoxBackground::mouseReleaseEvent(QMouseEvent*) {
    drag_.release();
}

void ZQAboutBoxIconView::setIcon(const QIcon& icon) {
    icon_ = icon;
    setPixmap(icon.pixmap(size())); // what assistive technology takes a label to be a picture by
    update();
}

void ZQAboutBoxIconView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    icon_.paint(&painter, rect());
}

void ZQAboutBoxIconView::mousePressEvent(QMouseEvent* event) {
    drag_.press(*event, *this);
}
void ZQAboutBoxIconView::mouseMoveEvent(QMouseEvent* event) {
    drag_.move(*event, *this);
}
void ZQAboutBoxIconView::mouseReleaseEvent(QMouseEvent*) {
    drag_.release();
}

ZQAboutBoxScrollView::ZQAboutBoxScrollView(QWidget* parent) : QTextBrowser(parent) {
    viewport()->setAutoFillBackground(false);
    // The browser would replace its text by whatever a relative link names.
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, [](const QUrl& link) {
        if (const QString scheme = link.scheme();
            scheme == u"https" || scheme == u"http" || scheme == u"mailto") {
            QDesktopServices::openUrl(link);
        }
    });
}

QVariant ZQAboutBoxScrollView::loadResource(int, const QUrl&) {
    // Without any answer the document would look for a file of that name itself.
    static const QImage nothing = [] {
        QImage pixel(1, 1, QImage::Format_ARGB32);
        pixel.fill(Qt::transparent);
        return pixel;
    }();
    return nothing;
}

void ZQAboutBoxScrollView::changeEvent(QEvent* event) {
    const QPoint place(horizontalScrollBar()->value(), verticalScrollBar()->value());
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::StyleChange) {
        horizontalScrollBar()->setValue(place.x());
        verticalScrollBar()->setValue(place.y());
    }
}

} // namespace nocturo
