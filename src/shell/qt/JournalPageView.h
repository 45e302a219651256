#pragma once

#include "shell/qt/Sheet.h"

class EntryRow;
class MainWindow;
class UserLocale;

/// The journal page: selectors, entry row, list of bookings, balances. It takes the keys that no
/// control took: Return presses the default button that shows, Escape the cancel button.
class JournalPageView : public Sheet {
    Q_OBJECT

public:
    JournalPageView(MainWindow &window, const UserLocale &locale, QWidget *parent);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void AddCaptions(EntryRow &row);
    void AddEntryRow(EntryRow &row, const UserLocale &locale);
    void AddButtons(EntryRow &row);
    void AddErrorBar(EntryRow &row);
    void AddSelectors(MainWindow &window);
    void AddCashList(MainWindow &window);
    void AddBalances(MainWindow &window);

    EntryRow &entryRow_;
};
