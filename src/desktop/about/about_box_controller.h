#pragma once

#include "desktop/qt/bundle_information.h"
#include "desktop/qt/localized.h"

#include <QSizeF>
#include <QString>

#include <memory>

class QDialog;
class QTextDocument;

namespace Ui {
class ZQAboutBox;
}

namespace nocturo {

class ZQAboutBoxIconView;
class ZQAboutBoxScrollView;

/// The about box: a small window with the application's icon, name, version, copyright and
/// credits. The window is made when it is first shown. Main thread only; the application object
/// must outlive it.
class ZQAboutBoxController {
  public:
    /// `creditsFile` is an HTML document, the one in the user's language unless another is given;
    /// without it the box has no credits.
    explicit ZQAboutBoxController(BundleInformation bundle = BundleInformation::mainBundle(),
                                  QString creditsFile = QStringLiteral(":/bundle/") +
                                                        localized("Credits.html"));
    ~ZQAboutBoxController();
    ZQAboutBoxController(const ZQAboutBoxController&) = delete;
    ZQAboutBoxController& operator=(const ZQAboutBoxController&) = delete;

    QString windowNibName() const { return QStringLiteral("ZQAboutBox"); }

    /// Brings the window to the front. One that was closed comes back in the middle of its screen
    /// with the text at its beginning; a visible one stays as it is.
    void showWindow();

    /// Fills the window's template anew. Does nothing until the window has been made.
    void updateText();

    // Null until the window has been made.
    QDialog* window() const { return window_.get(); }
    ZQAboutBoxIconView* iconView() const;
    ZQAboutBoxScrollView* textView() const;

  private:
    void loadWindow();
    void windowDidLoad();
    void widenTextView();
    void applyTextInset();
    void centerWindow();

    BundleInformation bundle_;
    QString creditsFile_;
    std::unique_ptr<Ui::ZQAboutBox> outlets_;
    std::unique_ptr<QDialog> window_;
    std::unique_ptr<QTextDocument> templateText_;
    QSizeF textInset_; // between the text view's edges and its text
};

} // namespace nocturo
