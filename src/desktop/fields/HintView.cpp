#include "desktop/fields/HintView.h"

#include "desktop/drawing/Frame.h"

#include <QPainter>

namespace {

constexpr QMargins margins(6, 1, 6, 2);

} // namespace

HintView::HintView(QWidget &field) : QWidget(field.window()), field_(field) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(&field, &QObject::destroyed, this, &QObject::deleteLater);
    field.parentWidget()->installEventFilter(this);
}

bool HintView::eventFilter(QObject * /*watched*/, QEvent *event) {
    if (event->type() == QEvent::LayoutRequest && isVisible()) {
        setGeometry(Place());
    }
    return false;
}

void HintView::SetText(const QString &hint) {
    hint_ = hint;
    setVisible(!hint.isEmpty());
    setFont(field_.font());
    setGeometry(Place());
    raise();
    update();
}

QRect HintView::Place() const {
    // Clear of the ring around the field.
    const QPoint corner(0, field_.height() + 2);
    QRect place(corner, fontMetrics().size(0, hint_).grownBy(margins));
    for (const QWidget *each :
         field_.parentWidget()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        const QRect other = each->geometry().translated(-field_.pos());
        if (each->isVisible() && each->focusPolicy() == Qt::NoFocus && other.intersects(place)) {
            place.moveTop(other.bottom() + 1);
        }
    }
    place.translate(field_.mapTo(window(), QPoint()));
    // Whole in the window, if that is wide enough.
    place.moveLeft(std::max(0, std::min(place.left(), window()->width() - place.width())));
    return place;
}

void HintView::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().toolTipBase());
    FillFrame(painter, rect(), 1, palette().color(QPalette::Dark));
    painter.setPen(palette().color(QPalette::ToolTipText));
    painter.drawText(rect().marginsRemoved(margins), Qt::AlignVCenter, hint_);
}
