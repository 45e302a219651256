#pragma once

#include <QCalendarWidget>

/// A calendar that pops up at a field to choose one day from. It closes, and is gone, when a day is
/// chosen, by Escape and by a click elsewhere.
class CalendarPopup : public QCalendarWidget {
    Q_OBJECT

public:
    CalendarPopup(QDate day, const QLocale &locale, QWidget *field);

    void Open();

Q_SIGNALS:
    /// A day was chosen, and the pop-up is closed.
    void Chosen(QDate day);

protected:
    /// A line around it: what lies behind may have its colours.
    void paintEvent(QPaintEvent *event) override;

private:
    void Choose(QDate day);
    QPoint Position() const;
};
