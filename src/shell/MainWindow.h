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

/// The main window: combines the modules, opens and closes them, and dispatches the commands.
class MainWindow : public QObject {
    Q_OBJECT

public:
    /// The pages of PagePanel1.
    enum Page { JournalPage, PreferencesPage };

    /// Aborts the program if an item of menuBar or MainWindowToolbar has an unknown command name.
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

    /// Called once, after the window and all its controls have been created.
    void Event_Open();
    /// Called when the window closes. Writes unsaved changes of the preferences.
    void Event_Close();

    /// Runs a command by name, on any page: "new", "edit", "copy", "delete", "print", "export",
    /// "preferences", "cashbook" or "about". Does nothing for any other name. Text typed into an
    /// open cell is written first. "preferences" shows the preferences page and loads it from the
    /// database, even if it is already shown; "cashbook" leaves it and saves the company if it was
    /// edited.
    void MenuAction(const QString &name);
    /// Updates the menu entries; called whenever their state may have changed.
    void Event_EnableMenuItems();

    /// Returns whether the commands for the selected booking are enabled. A click in the journal
    /// list or a key press on one of its rows enables them; they are disabled when the list loses
    /// the focus.
    bool MenuItemEnable() const { return menuItemEnable_; }

private:
    struct Command {
        QStringView name;
        void (*run)(MainWindow &window);
    };
    static const Command commands[];

    /// Returns the command with the name, nullptr if there is none.
    static const Command *FindCommand(const QString &name);
    /// Aborts the program if the name is neither empty nor that of a command.
    static void RequireCommand(const QString &name);
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
