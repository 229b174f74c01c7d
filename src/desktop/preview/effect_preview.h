#pragma once

#include "desktop/preview/preview_curves.h"

#include <QImage>
#include <QPalette>
#include <QRectF>
#include <QWidget>

class QPainter;

namespace nocturo {

inline constexpr double kPictureShape = 1.5; // width to height

/// Draws what the curves do: a plot of them, and a picture seen through them, beside it or, in a
/// narrow area, below it. The painter's font and layout direction hold; its state is left as it
/// was. In an area that is too small for both there is only the picture.
void paintEffectPreview(QPainter& painter, const QRectF& area, const PreviewCurves& curves,
                        const QPalette& palette);

/// The same as an image on the palette's window color. `size` is in logical pixels: the image is
/// larger by the ratio, rounded. Needs an application object, but no window. Null for an empty
/// size.
QImage renderEffectPreview(const PreviewCurves& curves, QSize size, double devicePixelRatio,
                           const QPalette& palette);

/// The picture alone, in device pixels. Null for an empty size.
QImage pictureThrough(const PreviewCurves& curves, QSize pixels);

/// The preview of one display. It takes no focus and no input; screen readers find a graphic whose
/// description says in words what is seen. Main thread only.
class EffectPreview : public QWidget {
    Q_OBJECT

  public:
    explicit EffectPreview(QWidget* parent = nullptr);

    /// Only keeps them: however often they are set, they are drawn once a frame.
    void setCurves(const PreviewCurves& curves);
    const PreviewCurves& curves() const { return curves_; }

    /// Whether the plot stands beside the picture, which alone is larger. It does at first.
    void setPlotShown(bool shown);

    /// How the description calls the display: "Screen 1".
    void setDisplayName(const QString& displayName);

    /// What screen readers get; composed when it is asked for.
    QString description() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    PreviewCurves curves_;
    QString displayName_;
    bool plotShown_ = true;
};

} // namespace nocturo
