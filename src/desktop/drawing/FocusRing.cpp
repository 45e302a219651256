#include "desktop/drawing/FocusRing.h"

#include "desktop/drawing/CanvasButton.h"
#include "desktop/drawing/Frame.h"

#include <QApplication>
#include <QPainter>

FocusRing::FocusRing(QWidget &window) : QFocusFrame(&window), window_(window) {
    hide();
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget * /*before*/, QWidget *now) { SetFocusWidget(now); });
}

void FocusRing::SetFocusWidget(QWidget *focus) {
    const bool hasRing = focus != nullptr && focus->window() == &window_ &&
                         qobject_cast<CanvasButton *>(focus) == nullptr;
    setWidget(hasRing ? focus : nullptr);
}

void FocusRing::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    FillFrame(painter, rect(), 2, palette().color(QPalette::Highlight));
}
