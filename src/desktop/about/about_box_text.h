#pragma once

#include <QString>
#include <QTextDocumentFragment>

#include <memory>

class QByteArray;
class QObject;
class QTextDocument;

namespace nocturo {

/// What takes the place of the words "App", "Version", "Copyright" and "Credits" in the template.
struct AboutBoxTexts {
    QString name;
    QString version;
    QString copyright;
    QTextDocumentFragment credits;
};

/// The rich text of an HTML document in the encoding that it declares (UTF-8 without). Nothing that
/// it refers to is loaded. Links are dark, for a light background. Empty for an empty document.
QTextDocumentFragment creditsFromHtml(const QByteArray& html);

/// A copy of the template with the texts in place of its words, which it must hold in the order
/// given above. A text looks like the word it replaces, but for the credits, which have a look of
/// their own, and the fonts of name (bold) and version: the system's, in the word's size.
std::unique_ptr<QTextDocument> filledTemplate(const QTextDocument& aboutTemplate,
                                              const AboutBoxTexts& texts, QObject* parent);

} // namespace nocturo
