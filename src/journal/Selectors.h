#pragma once

#include "platform/lists/PopupMenu.h"
#include "platform/values/Date.h"

#include <QObject>

#include <functional>

class App;

/// Cash book, year and month: what the journal shows. A change of a selector asks for a fresh
/// journal through RefreshJournal; so does a rebuilding of the lists, which selects by position
/// again.
class Selectors : public QObject {
    Q_OBJECT

public:
    explicit Selectors(const App &app);

    PopupMenu CashbookPopup;
    PopupMenu YearPopup;
    PopupMenu MonthPopup;

    /// Makes several changes. RefreshJournal is fired once after them, if any of them asked.
    void ChangeTogether(const std::function<void()> &changes);

    /// Rebuild their selector from the database and select what stands at the remembered position,
    /// or the last row when that lies beyond the list. A failed query leaves the selector empty;
    /// that of the years requests a refresh too, which shows the failure.
    void GetCashbooks();
    void GetJournalYears();
    void LoadMonths();
    /// Rebuilds what a failed query has left empty. To be called before a selection is booked,
    /// printed or exported, for without one the main cash book would be taken.
    void LoadMissing();

    /// Selects year and month of the date. A year that is not in the list leaves the year.
    void ShowPeriod(const Date &date);

    /// "cashbookID = '...'", to follow a WHERE or an AND. The first row stands for the main cash
    /// book, whatever its tag says.
    QString CashbookCondition() const;
    /// The same, and the selected year.
    QString CashbookAndYearCondition() const;
    /// The id of the selected cash book, 0 if there is none.
    int SelectedCashbookID() const;
    /// The first day of the selected month or year, as a SQL date.
    QString PeriodStartSQL() const;

Q_SIGNALS:
    /// Load the journal and compute its balances anew.
    void RefreshJournal();

private:
    void CashbookPopup_Change();
    void YearPopup_Change();
    void MonthPopup_Change();
    void RequestRefresh();

    const App &app_;
    // Positions in their lists, not ids or years; they outlive a rebuilding of the lists.
    int mCashbookID_ = 0;
    int mYear_ = 0;
    int together_ = 0;
    bool isRefreshRequested_ = false;
};
