#include "shell/MainWindow.h"

#include "core/App.h"
#include "platform/Text.h"
#include "reports/ListExport.h"

using namespace Qt::StringLiterals;

MainWindow::MainWindow(App &app)
    : selectors(app), journal(app, selectors), balances(app, selectors, journal),
      entryRow(app, selectors, journal, balances), companyProfile(app), cashBooks(app),
      bookingAccounts(app), cashReport(app, selectors, journal, balances, companyProfile),
      accountingExport(app, selectors), PagePanel1(u"PagePanel1"_s),
      PreferencesButton(u"PreferencesButton"_s, u"Einstellungen"_s, u"interface_preferences.png"_s),
      app_(app) {
    connect(&journal.CashList, &Listbox::CellClick, this, &MainWindow::CashList_CellClick);
    connect(&journal.CashList, &Listbox::LostFocus, this, &MainWindow::CashList_LostFocus);
    connect(&PreferencesButton, &ToolItem::Action, this, &MainWindow::MainWindowToolbar_Action);
}

void MainWindow::Event_Open() {
    {
        const Selectors::Hold oneRefresh(selectors);
        entryRow.NewSale();
        selectors.LoadMonths();
    }
    companyProfile.LoadFields();
    entryRow.DateField.SetFocus();
}

void MainWindow::Event_Close() {
    EndEdits();
    if (companyProfile.RecordChange()) {
        companyProfile.SaveFields();
    }
}

void MainWindow::MenuAction(const QString &word) {
    if (SameText(word, u"print"_s)) {
        cashReport.Print();
    } else if (SameText(word, u"export"_s)) {
        Export();
    } else if (SameText(word, u"preferences"_s)) {
        EnterPreferences();
    } else if (SameText(word, u"cashbook"_s)) {
        LeavePreferences();
    }
}

void MainWindow::Export() {
    accountingExport.ExportJournal();
    TLXModule::ExportCSV(app_.GetDesktop(), accountingExport.ExportList);
}

void MainWindow::EnterPreferences() {
    PagePanel1.SetValue(1);
    companyProfile.LoadFields();
    cashBooks.LoadCashBook();
    bookingAccounts.LoadCashAccounts();
    PreferencesButton.SetCaption(u"Kassenbuch"_s);
}

void MainWindow::LeavePreferences() {
    EndEdits();
    PagePanel1.SetValue(0);
    selectors.GetCashbooks();
    PreferencesButton.SetCaption(u"Einstellungen"_s);
    if (companyProfile.RecordChange()) {
        companyProfile.SaveFields();
    }
}

void MainWindow::EndEdits() {
    cashBooks.CashbookList.EndEdit();
    bookingAccounts.CashaccountList.EndEdit();
}

void MainWindow::MainWindowToolbar_Action() {
    MenuAction(PagePanel1.Value() != 0 ? u"cashbook"_s : u"preferences"_s);
}

void MainWindow::CashList_CellClick() {
    if (journal.CashList.ListCount() >= 1) {
        menuItemEnable_ = true;
    }
}

void MainWindow::CashList_LostFocus() {
    menuItemEnable_ = false;
}
