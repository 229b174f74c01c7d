#include "desktop/about/about_box_controller.h"

#include "desktop/about/about_box_text.h"
#include "desktop/about/about_box_views.h"
#include "desktop/qt/localized.h"
#include "ui_ZQAboutBox.h"

#include <QDialog>
#include <QFile>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextFrame>

#include <utility>

namespace nocturo {

namespace {

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void mirror(QWidget& widget) {
    QRect frame = widget.geometry();
    frame.moveLeft(widget.parentWidget()->width() - frame.x() - frame.width());
    widget.setGeometry(frame);
}

} // namespace

ZQAboutBoxController::ZQAboutBoxController(BundleInformation bundle, QString creditsFile)
    : bundle_(std::move(bundle)), creditsFile_(std::move(creditsFile)) {}

ZQAboutBoxController::~ZQAboutBoxController() = default;

ZQAboutBoxIconView* ZQAboutBoxController::iconView() const {
    return outlets_ ? outlets_->iconView : nullptr;
}

ZQAboutBoxScrollView* ZQAboutBoxController::textView() const {
    return outlets_ ? outlets_->textView : nullptr;
}

void ZQAboutBoxController::showWindow() {
    if (!window_) {
        loadWindow();
    }
    if (!window_->isVisible()) {
        textView()->horizontalScrollBar()->setValue(0);
        textView()->verticalScrollBar()->setValue(0);
        centerWindow();
    }
    // Scroll bars that come and go show themselves whenever the window does.
    window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void ZQAboutBoxController::loadWindow() {
    window_ = std::make_unique<QDialog>();
    outlets_ = std::make_unique<Ui::ZQAboutBox>();
    outlets_->setupUi(window_.get());
    windowDidLoad();
}

void ZQAboutBoxController::windowDidLoad() {
    window_->setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                            Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    window_->setAttribute(Qt::WA_QuitOnClose, false);
    window_->setFixedSize(window_->size());
    const QString title = filled(localized("About %@"), {applicationName(bundle_)});
    window_->setWindowTitle(title);
    // The background is light whatever the theme, so everything on it must go with a light one.
    const QColor grey = ZQAboutBoxBackgroundColor();
    window_->setPalette(QPalette(grey, grey));
    QObject::connect(new QShortcut(QKeySequence::Close, window_.get()), &QShortcut::activated,
                     window_.get(), &QWidget::close);

    updateText();
    widenTextView();
    textView()->verticalScrollBar()->setValue(0);
    textView()->setAccessibleName(title);
    textView()->setFocus();
    iconView()->setIcon(applicationIcon());
    iconView()->setAccessibleName(applicationName(bundle_));
    if (window_->isRightToLeft()) {
        mirror(*iconView());
        mirror(*textView());
    }
}

void ZQAboutBoxController::updateText() {
    if (!window_) {
        return;
    }
    if (!templateText_) {
        templateText_.reset(textView()->document()->clone());
        const qreal margin = templateText_->documentMargin();
        textInset_ = {margin, margin};
    }
    const AboutBoxTexts texts{
        applicationName(bundle_), filled(localized("Version %@"), {versionText(bundle_)}),
        bundle_.stringForKey("NSHumanReadableCopyright"), creditsFromHtml(contents(creditsFile_))};
    // The view deletes the former text itself, as the parent of both.
    textView()->setDocument(filledTemplate(*templateText_, texts, textView()).release());
    applyTextInset();
}

void ZQAboutBoxController::applyTextInset() {
    QTextFrame* frame = textView()->document()->rootFrame();
    QTextFrameFormat format = frame->frameFormat();
    format.setLeftMargin(textInset_.width());
    format.setRightMargin(textInset_.width());
    format.setTopMargin(textInset_.height());
    format.setBottomMargin(textInset_.height());
    frame->setFrameFormat(format);
}

/// Takes the text view to the window's edges while its text stays where it was, so that text
/// scrolls out at the window's edge and the scroll bar is there too.
void ZQAboutBoxController::widenTextView() {
    const QRect frame = textView()->geometry();
    const QRect bounds = outlets_->background->rect();
    const int right = bounds.width() - (frame.x() + frame.width());
    const int top = frame.y();
    textView()->setGeometry(frame.x() - right, bounds.y(), frame.width() + 2 * right,
                            bounds.height());
    textInset_ += QSizeF(right, top);
    applyTextInset();
}

void ZQAboutBoxController::centerWindow() {
    QRect frame = window_->frameGeometry();
    frame.moveCenter(window_->screen()->availableGeometry().center());
    window_->move(frame.topLeft());
}

} // namespace nocturo
