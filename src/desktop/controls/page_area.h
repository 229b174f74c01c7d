#pragma once

#include <QScrollArea>
#include <QScrollBar>

namespace nocturo {

/// A page that scrolls where there is too little room, and asks for as much as all of it takes.
class PageArea : public QScrollArea {
  public:
    using QScrollArea::QScrollArea;

    QSize sizeHint() const override {
        return widget() == nullptr ? QScrollArea::sizeHint()
                                   : widget()->sizeHint() + QSize(2, 2) * frameWidth();
    }

    QSize minimumSizeHint() const override {
        const QSize bars(verticalScrollBar()->sizeHint().width(),
                         horizontalScrollBar()->sizeHint().height());
        return bars * 4;
    }
};

} // namespace nocturo
