#pragma once

#include "desktop/windows/Sheet.h"

class EntryRow;
class MainWindow;
class TextField;
class UserLocale;

/// The journal page: selectors, entry row, list of bookings, balances.
class JournalPageView : public Sheet {
    Q_OBJECT

public:
    JournalPageView(MainWindow &window, const UserLocale &locale, QWidget *parent);

private:
    void AddEntryRow(EntryRow &row, const UserLocale &locale);
    QWidget *AddAmountField(TextField &field, const QRect &place);
    void AddButtons(EntryRow &row);
    void AddErrorBar(EntryRow &row);
    /// Has assistive tools read the error text of the row with each of its fields.
    void DescribeErrors(EntryRow &row);
    void AddSelectors(MainWindow &window);
    void AddCashList(MainWindow &window);
    void AddBalances(MainWindow &window);
};
