#pragma once

#include "journal/Balances.h"
#include "journal/EntryRow.h"
#include "journal/Journal.h"
#include "journal/Selectors.h"
#include "masterdata/BookingAccounts.h"
#include "masterdata/CashBooks.h"
#include "masterdata/CompanyProfile.h"
#include "platform/controls/PagePanel.h"
#include "reports/AccountingExport.h"
#include "reports/CashReport.h"
#include "shell/MainMenuBar.h"
#include "shell/MainToolbar.h"

#include <QObject>

class App;

/// The one document window: it puts the rooms together, opens and closes them, and routes the
/// commands.
class MainWindow : public QObject {
    Q_OBJECT

public:
    /// The pages of PagePanel1.
    enum Page { JournalPage, PreferencesPage };

    /// An entry of menuBar or MainWindowToolbar with a word that is no command ends the program.
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
    MainMenuBar menuBar;
    MainToolbar MainWindowToolbar;

    /// Runs once, when the window with all its controls is there.
    void Event_Open();
    /// Runs when the window closes: what has been typed in the preferences is written.
    void Event_Close();

    /// Runs the command of a word, on whichever page: "new", "edit", "copy", "delete", "print",
    /// "export", "preferences", "cashbook" and "about". Another word does nothing. What has been
    /// typed into an open cell is written first. "preferences" enters the preferences page and
    /// reads it anew from the book, also when it shows already; "cashbook" leaves it and saves the
    /// company if it was edited.
    void MenuAction(const QString &word);
    /// Runs whenever the state of the menus may have changed.
    void Event_EnableMenuItems();

    /// Whether the commands that work on a booking are open: a click in the list opens them, or a
    /// key on a row of it, and they close when the focus leaves the list.
    bool MenuItemEnable() const { return menuItemEnable_; }

private:
    struct Command {
        QStringView word;
        void (*run)(MainWindow &at);
    };
    static const Command commands[];

    /// Nothing for a word that is no command.
    static const Command *Find(const QString &word);
    static void RequireCommand(const QString &word);
    void AddMenuHandlers();
    void AddMenuHandler(const MenuItem &item);
    void HideMenuEntries();
    void OpenPreferences();
    void ClosePreferences();
    void Print();
    void Export();
    void EndEdits();
    void EnableRowCommands(bool enabled);
    void MainWindowToolbar_Action(const ToolItem &item);
    void FileOpen_Action();
    void CashList_CellClick();

    App &app_;
    bool menuItemEnable_ = false;
};
