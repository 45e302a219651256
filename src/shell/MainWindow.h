#pragma once

#include "journal/Balances.h"
#include "journal/EntryRow.h"
#include "journal/Journal.h"
#include "journal/Selectors.h"
#include "masterdata/BookingAccounts.h"
#include "masterdata/CashBooks.h"
#include "masterdata/CompanyProfile.h"
#include "platform/PagePanel.h"
#include "platform/ToolItem.h"
#include "reports/AccountingExport.h"
#include "reports/CashReport.h"

#include <QObject>

class App;

/// The one document window: it puts the rooms together, opens and closes them, and routes the
/// commands. Page 0 is the journal, page 1 the preferences.
class MainWindow : public QObject {
    Q_OBJECT

public:
    explicit MainWindow(App &app);

    Selectors selectors;
    Journal journal;
    Balances balances;
    EntryRow entryRow;
    CompanyProfile companyProfile;
    CashBooks cashBooks;
    BookingAccounts bookingAccounts;
    CashReport cashReport;
    AccountingExport accountingExport;

    PagePanel PagePanel1;
    /// Leads to the preferences, and back to the journal.
    ToolItem PreferencesButton;

    /// Runs once, when the window with all its controls is there.
    void Event_Open();
    /// Runs when the window closes: what has been typed in the preferences is written.
    void Event_Close();

    /// Runs the command of a word: "print" prints the cash report and "export" writes the posting
    /// records of the year, both from either page; "preferences" enters the preferences page and
    /// reads it anew from the book, "cashbook" leaves it and saves the company if it was edited.
    /// Another word does nothing.
    void MenuAction(const QString &word);

    /// Whether the commands that work on a booking are open: a click in the list opens them, and
    /// they close when the focus leaves the list.
    bool MenuItemEnable() const { return menuItemEnable_; }

private:
    void Export();
    void EnterPreferences();
    void LeavePreferences();
    void EndEdits();
    void MainWindowToolbar_Action();
    void CashList_CellClick();
    void CashList_LostFocus();

    App &app_;
    bool menuItemEnable_ = false;
};
