#include "desktop/help/guide_window.h"

#include "desktop/qt/localized.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QImage>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTextDocument>

namespace nocturo {

namespace {

constexpr QSize kSize(820, 680);
constexpr qreal kMargin = 16;
constexpr int kPictureWidth = 760;

/// How Markdown's readers name the place of a heading: "In a bar" is "in-a-bar".
QString placeOf(const QString& heading) {
    QString name;
    for (const QChar letter : heading.toLower()) {
        if (letter.isLetterOrNumber() || letter == u'-') {
            name += letter;
        } else if (letter == u' ') {
            name += u'-';
        }
    }
    return name;
}

} // namespace

GuideWindow::GuideWindow(const QString& guide) {
    setWindowTitle(localized("Nocturo User Guide"));
    resize(kSize);
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, &GuideWindow::follow);
    setSource(QUrl::fromLocalFile(guide), QTextDocument::MarkdownResource);
    document()->setDocumentMargin(kMargin);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this,
            &QWidget::close);
}

void GuideWindow::showInFront() {
    show();
    raise();
    activateWindow();
}

// Pictures as wide as the window at most.
QVariant GuideWindow::loadResource(int type, const QUrl& name) {
    QVariant resource = QTextBrowser::loadResource(type, name);
    QImage picture;
    if (type == QTextDocument::ImageResource && picture.loadFromData(resource.toByteArray()) &&
        picture.width() > kPictureWidth) {
        return picture.scaledToWidth(kPictureWidth, Qt::SmoothTransformation);
    }
    return resource;
}

void GuideWindow::follow(const QUrl& link) {
    const QUrl target = source().resolved(link);
    if (!target.isLocalFile()) {
        QDesktopServices::openUrl(target);
        return;
    }
    if (!QFileInfo::exists(target.toLocalFile())) {
        return; // not all that it refers to comes along
    }
    if (target.adjusted(QUrl::RemoveFragment) != source().adjusted(QUrl::RemoveFragment)) {
        setSource(target.adjusted(QUrl::RemoveFragment), QTextDocument::MarkdownResource);
        document()->setDocumentMargin(kMargin);
    }
    if (target.hasFragment()) {
        scrollToHeading(target.fragment());
    }
}

void GuideWindow::scrollToHeading(const QString& name) {
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0 && placeOf(block.text()) == name) {
            setTextCursor(QTextCursor(block));
            verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect().top());
            return;
        }
    }
}

} // namespace nocturo
