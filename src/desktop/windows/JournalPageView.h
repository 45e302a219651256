#pragma once

#include "desktop/windows/Form.h"

class Balances;
class EntryRow;
class Journal;
class Selectors;
class TextField;
class UserLocale;

/// The journal page: selectors, entry row, list of bookings, balances.
class JournalPageView : public Form {
    Q_OBJECT

public:
    struct Parts {
        Selectors &selectors;
        EntryRow &entryRow;
        Journal &journal;
        Balances &balances;
    };
    JournalPageView(const Parts &parts, const UserLocale &locale, QWidget *parent);

private:
    void AddEntryRow(EntryRow &row, const UserLocale &locale);
    QWidget *AddAmountField(TextField &field, const QRect &rect);
    void AddButtons(EntryRow &row);
    void AddErrorBar(EntryRow &row);
    void AddCashList(Journal &journal);
    void AddSelectors(Selectors &selectors);
    void AddBalances(Balances &balances);
};
