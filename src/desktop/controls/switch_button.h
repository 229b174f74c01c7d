#pragma once

#include <QCheckBox>

namespace nocturo {

/// A check box drawn as a switch, without a text. Main thread only.
class SwitchButton : public QCheckBox {
  public:
    explicit SwitchButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void paintEvent(QPaintEvent* event) override;

  private:
    QSize pill() const;
};

} // namespace nocturo
