#pragma once

#include <QTextBrowser>

namespace nocturo {

/// The user guide as it is installed, with its pictures and what it refers to. Needs a
/// QApplication; hidden when it is closed.
class GuideWindow : public QTextBrowser {
  public:
    /// `guide` is a Markdown file.
    explicit GuideWindow(const QString& guide);

    /// Shows the window in front of others.
    void showInFront();

    QVariant loadResource(int type, const QUrl& name) override;

  private:
    void follow(const QUrl& link);
    void scrollToHeading(const QString& name);
};

} // namespace nocturo
