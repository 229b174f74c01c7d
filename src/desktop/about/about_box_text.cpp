#include "desktop/about/about_box_text.h"

#include <QByteArray>
#include <QFontDatabase>
#include <QStringDecoder>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>
#include <QVariant>

namespace nocturo {

namespace {

/// A document by itself would look for pictures and style sheets among the user's files.
class SealedDocument : public QTextDocument {
  protected:
    QVariant loadResource(int, const QUrl&) override { return {}; }
};

QTextCursor wordIn(QTextDocument& document, const QString& word) {
    QTextCursor cursor(&document);
    const int start = static_cast<int>(document.toPlainText().indexOf(word));
    if (start >= 0) {
        cursor.setPosition(start);
        cursor.setPosition(start + static_cast<int>(word.size()), QTextCursor::KeepAnchor);
    }
    return cursor;
}

QTextCharFormat formatAtStart(const QTextCursor& range) {
    QTextCursor first(range.document());
    first.setPosition(range.selectionStart() + 1); // a cursor's format is that of what precedes it
    return first.charFormat();
}

void replace(const QTextCursor& range, const QString& text) {
    QTextCursor(range).insertText(text, formatAtStart(range));
}

void setSystemFont(QTextCursor range, bool bold) {
    QFont placeholder = formatAtStart(range).font();
    placeholder = placeholder.resolve(range.document()->defaultFont());
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    if (placeholder.pointSizeF() > 0) {
        font.setPointSizeF(placeholder.pointSizeF());
    } else {
        font.setPixelSize(placeholder.pixelSize());
    }
    font.setBold(bold);
    QTextCharFormat format;
    format.setFont(font);
    range.mergeCharFormat(format);
}

} // namespace

QTextDocumentFragment creditsFromHtml(const QByteArray& html) {
    QString text = QStringDecoder::decoderForHtml(html).decode(html);
    // The font of older systems, which credits written for them name.
    const QString olderFont = QStringLiteral("Lucida Grande");
    if (const qsizetype found = text.indexOf(olderFont); found >= 0) {
        text.replace(found, olderFont.size(), QStringLiteral("Helvetica Neue"));
    }
    SealedDocument document;
    document.setDefaultStyleSheet(QStringLiteral("a { color: #0b4da2 }"));
    document.setHtml(text);
    return QTextDocumentFragment(&document);
}

std::unique_ptr<QTextDocument> filledTemplate(const QTextDocument& aboutTemplate,
                                              const AboutBoxTexts& texts, QObject* parent) {
    std::unique_ptr<QTextDocument> document(aboutTemplate.clone(parent));
    const QTextCursor name = wordIn(*document, QStringLiteral("App"));
    const QTextCursor version = wordIn(*document, QStringLiteral("Version"));
    const QTextCursor copyright = wordIn(*document, QStringLiteral("Copyright"));
    QTextCursor credits = wordIn(*document, QStringLiteral("Credits"));
    setSystemFont(version, false);
    setSystemFont(name, true);
    credits.removeSelectedText(); // an empty fragment would leave the word
    credits.insertFragment(texts.credits);
    replace(copyright, texts.copyright);
    replace(version, texts.version);
    replace(name, texts.name);
    return document;
}

} // namespace nocturo
