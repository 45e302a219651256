#include "desktop/controls/CalendarPopup.h"

#include <QPainter>
#include <QScreen>
#include <QTextCharFormat>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Darker than the toolkit's red, which is hard to read on white.
constexpr QColor weekendRed(0x9c, 0x00, 0x06);

} // namespace

CalendarPopup::CalendarPopup(QDate day, const QLocale &locale, QWidget *field)
    : QCalendarWidget(field) {
    setWindowFlags(Qt::Popup);
    setAttribute(Qt::WA_DeleteOnClose);
    // Colours and font are the field's.
    setAttribute(Qt::WA_WindowPropagation);
    // The click that closes it does nothing else; on the field's button it would open it again.
    setAttribute(Qt::WA_NoMouseReplay);
    setContentsMargins(1, 1, 1, 1);
    setLocale(locale);
    setFirstDayOfWeek(Qt::Monday);
    setVerticalHeaderFormat(NoVerticalHeader);
    setDateEditEnabled(false);
    setSelectedDate(day);
    setAccessibleName(u"Kalender"_s);
    findChild<QToolButton *>(u"qt_calendar_prevmonth"_s)->setAccessibleName(u"Voriger Monat"_s);
    findChild<QToolButton *>(u"qt_calendar_nextmonth"_s)->setAccessibleName(u"Nächster Monat"_s);
    QTextCharFormat weekend;
    weekend.setForeground(weekendRed);
    setWeekdayTextFormat(Qt::Saturday, weekend);
    setWeekdayTextFormat(Qt::Sunday, weekend);
    connect(this, &QCalendarWidget::clicked, this, &CalendarPopup::Choose);
    connect(this, &QCalendarWidget::activated, this, &CalendarPopup::Choose);
}

void CalendarPopup::Open() {
    move(Place());
    show();
    setFocus(Qt::PopupFocusReason);
}

void CalendarPopup::paintEvent(QPaintEvent *event) {
    QCalendarWidget::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void CalendarPopup::Choose(QDate day) {
    close();
    Q_EMIT Chosen(day);
}

QPoint CalendarPopup::Place() const {
    const QWidget &field = *parentWidget();
    const QRect free = field.screen()->availableGeometry();
    const QSize size = sizeHint();
    const QPoint above = field.mapToGlobal(QPoint(0, -size.height()));
    const QPoint below = field.mapToGlobal(QPoint(0, field.height()));
    const int right = std::max(free.left(), free.right() - size.width());
    return {std::clamp(below.x(), free.left(), right),
            below.y() + size.height() > free.bottom() ? above.y() : below.y()};
}
