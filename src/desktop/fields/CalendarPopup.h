#pragma once

#include <QCalendarWidget>

/// A pop-up calendar below or above a field. It closes and deletes itself when the user selects a
/// day, presses Escape or clicks elsewhere.
class CalendarPopup : public QCalendarWidget {
    Q_OBJECT

public:
    CalendarPopup(QDate day, const QLocale &locale, QWidget *field);

    void Open();

Q_SIGNALS:
    /// Emitted when a day was selected, after the pop-up has closed.
    void Selected(QDate day);

protected:
    /// Adds a border, since the background may have the same colour.
    void paintEvent(QPaintEvent *event) override;

private:
    void Select(QDate day);
    QPoint Position() const;
};
