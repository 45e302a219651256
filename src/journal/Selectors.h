#pragma once

#include "platform/lists/PopupMenu.h"
#include "platform/values/Date.h"

#include <QObject>

#include <functional>

class App;

/// The selectors of the cash book, the year and the month that the journal shows. RefreshJournal is
/// emitted when a selection changes, and when a list is reloaded, which restores the selection by
/// index.
class Selectors : public QObject {
    Q_OBJECT

public:
    explicit Selectors(const App &app);

    PopupMenu CashbookPopup;
    PopupMenu YearPopup;
    PopupMenu MonthPopup;

    /// Runs several changes. RefreshJournal is emitted once after them, if any of them requested
    /// it.
    void ChangeTogether(const std::function<void()> &changes);

    /// Reload their selector from the database and select the row at the last selected index, or
    /// the last row if the list is shorter. If the query fails, the selector is empty; a failed
    /// query of the years also requests a refresh, which shows the error in a message.
    void GetCashbooks();
    void GetJournalYears();
    /// Fills the months and selects the whole year.
    void LoadMonths();
    /// Reloads the selectors that a failed query has left empty. Must be called before the
    /// selection is used for a booking, the report or the export, because without a selection the
    /// main cash book is used.
    void LoadMissing();

    /// Selects the year and the month of the date. The year is unchanged if it is not in the list.
    void ShowPeriod(const Date &date);

    /// Returns "cashbookID = '...'", for use after WHERE or AND. The first row is the main cash
    /// book, regardless of its tag.
    QString CashbookCondition() const;
    /// The same condition, and the selected year.
    QString CashbookAndYearCondition() const;
    /// Returns the id of the selected cash book, 0 if there is none.
    int SelectedCashbookID() const;
    /// Returns the first day of the selected month or year as an SQL date.
    QString PeriodStartSQL() const;

Q_SIGNALS:
    /// Emitted when the journal must be reloaded and its balances recomputed.
    void RefreshJournal();

private:
    void CashbookPopup_Change();
    void YearPopup_Change();
    void MonthPopup_Change();
    void RequestRefresh();

    const App &app_;
    // The last selected indexes, not ids or years; not changed by a reload of the lists.
    int mCashbookID_ = 0;
    int mYear_ = 0;
    /// The nesting depth of ChangeTogether.
    int changeDepth_ = 0;
    bool isRefreshRequested_ = false;
};
