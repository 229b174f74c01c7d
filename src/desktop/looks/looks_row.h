#pragma once

#include "desktop/preview/preview_curves.h"
#include "documents/looks.h"

#include <QImage>
#include <QListWidget>

#include <vector>

namespace nocturo {

/// Looks in a row that scrolls: of each a small picture of what it makes of a display, and its
/// title below. A click, or Space or Return, picks one, and one can be dragged to another place.
/// The one in force is framed, and ticked for screen readers. Pictures are drawn when they are
/// first to be seen, but for the first time only once everything else is. Main thread only.
class LooksRow : public QListWidget {
    Q_OBJECT

  public:
    explicit LooksRow(QWidget* parent = nullptr);

    /// The keyboard stays at the look that it is at, as long as that is there.
    void setLooks(const std::vector<Look>& looks);

    void setCurrentLook(const std::string& name);

    /// Ticks the look of that name, or none.
    void setInForce(const std::string& name);

    /// What the pictures are drawn from; its `after` is not used.
    void setCurves(const PreviewCurves& curves);

    /// The look that the keyboard is at; null where there is none. Valid until the next setLooks().
    const Look* currentLook() const;

    /// The picture of a row, in device pixels.
    const QImage& picture(int row, QSize pixels);

    /// Half as high where there is little room; not at first.
    void setTight(bool isTight);

    /// Of a look's picture, and of all that is shown of it.
    QSize pictureSize() const;
    QSize tileSize() const;

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

  Q_SIGNALS:
    void picked(const QString& name);

    /// The user wants the current look to have another name, to be gone, or to be one place earlier
    /// or later.
    void renameWanted();
    void removalWanted();
    void moveWanted(int places);

  protected:
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void pick(const QListWidgetItem& item);
    int leastTileWidth() const;
    void makeRoomForBar();
    void paintGap();
    int gapAt(QPoint point) const;
    void endDrag();

    std::vector<Look> looks_;
    std::vector<QImage> pictures_; // of each, null until it is drawn
    PreviewCurves curves_;
    bool wasPainted_ = false;
    bool scrolls_ = false; // wider than the row
    bool isTight_ = false;
    QPoint pressedAt_;
    int dragged_ = -1; // the row that is being dragged
    int gap_ = -1;     // before which it would go now; -1 where it would stay
};

} // namespace nocturo
