#include "desktop/fields/CalendarPopup.h"

#include "desktop/drawing/Frame.h"
#include "desktop/fields/Announcement.h"

#include <QPainter>
#include <QScreen>
#include <QTableView>
#include <QTextCharFormat>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Darker than Qt's red, which is hard to read on white.
constexpr QColor weekendRed(0x9c, 0x00, 0x06);

} // namespace

CalendarPopup::CalendarPopup(QDate day, const QLocale &locale, QWidget *field)
    : QCalendarWidget(field) {
    setWindowFlags(Qt::Popup);
    setAttribute(Qt::WA_DeleteOnClose);
    // Inherits colours and font from the field.
    setAttribute(Qt::WA_WindowPropagation);
    // The click that closes it is not replayed; on the field's button it would open it again.
    setAttribute(Qt::WA_NoMouseReplay);
    setContentsMargins(1, 1, 1, 1);
    setLocale(locale);
    setFirstDayOfWeek(Qt::Monday);
    setVerticalHeaderFormat(NoVerticalHeader);
    setDateEditEnabled(false);
    setSelectedDate(day);
    setAccessibleName(u"Kalender"_s);
    findChild<QTableView *>()->setAccessibleName(u"Tage"_s);
    findChild<QToolButton *>(u"qt_calendar_prevmonth"_s)->setAccessibleName(u"Voriger Monat"_s);
    findChild<QToolButton *>(u"qt_calendar_nextmonth"_s)->setAccessibleName(u"Nächster Monat"_s);
    // The bar has the colour of the selection, on which most styles draw invisible arrows.
    QPalette bar;
    bar.setColor(QPalette::Highlight, palette().color(QPalette::Button));
    bar.setColor(QPalette::HighlightedText, palette().color(QPalette::ButtonText));
    findChild<QWidget *>(u"qt_calendar_navigationbar"_s)->setPalette(bar);
    QTextCharFormat weekend;
    weekend.setForeground(weekendRed);
    setWeekdayTextFormat(Qt::Saturday, weekend);
    setWeekdayTextFormat(Qt::Sunday, weekend);
    // Screen readers read the whole week of a selected day.
    connect(this, &QCalendarWidget::selectionChanged, this, [this] {
        Announce(*this, this->locale().toString(selectedDate(), QLocale::LongFormat));
    });
    connect(this, &QCalendarWidget::clicked, this, &CalendarPopup::Select);
    connect(this, &QCalendarWidget::activated, this, &CalendarPopup::Select);
}

void CalendarPopup::Open() {
    adjustSize();
    // The size hint cuts off the names of the days in some large fonts.
    resize(width() + 2 * fontMetrics().averageCharWidth(), height());
    move(Position());
    show();
    setFocus(Qt::PopupFocusReason);
}

void CalendarPopup::paintEvent(QPaintEvent *event) {
    QCalendarWidget::paintEvent(event);
    QPainter painter(this);
    FillFrame(painter, rect(), 1, palette().color(QPalette::Dark));
}

void CalendarPopup::Select(QDate day) {
    close();
    Q_EMIT Selected(day);
}

QPoint CalendarPopup::Position() const {
    const QWidget &field = *parentWidget();
    const QRect available = field.screen()->availableGeometry();
    const QPoint above = field.mapToGlobal(QPoint(0, -height()));
    const QPoint below = field.mapToGlobal(QPoint(0, field.height()));
    const int right = std::max(available.left(), available.right() + 1 - width());
    return {std::clamp(below.x(), available.left(), right),
            below.y() + height() > available.bottom() ? above.y() : below.y()};
}
