#include "desktop/fields/HintView.h"

#include "desktop/drawing/Frame.h"

#include <QEvent>
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
        setGeometry(HintRect());
    }
    return false;
}

void HintView::SetText(const QString &hint) {
    hint_ = hint;
    setVisible(!hint.isEmpty());
    setFont(field_.font());
    setGeometry(HintRect());
    raise();
    update();
}

QRect HintView::HintRect() const {
    // Below the focus ring of the field.
    const QPoint corner(0, field_.height() + 2);
    QRect rect(corner, fontMetrics().size(0, hint_).grownBy(margins));
    for (const QWidget *each :
         field_.parentWidget()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        const QRect other = each->geometry().translated(-field_.pos());
        if (each->isVisible() && each->focusPolicy() == Qt::NoFocus && other.intersects(rect)) {
            rect.moveTop(other.bottom() + 1);
        }
    }
    rect.translate(field_.mapTo(window(), QPoint()));
    // Inside the window, if that is wide enough.
    rect.moveLeft(std::max(0, std::min(rect.left(), window()->width() - rect.width())));
    return rect;
}

void HintView::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().toolTipBase());
    FillFrame(painter, rect(), 1, palette().color(QPalette::Dark));
    painter.setPen(palette().color(QPalette::ToolTipText));
    painter.drawText(rect().marginsRemoved(margins), Qt::AlignVCenter, hint_);
}
