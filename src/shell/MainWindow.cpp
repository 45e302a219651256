#include "shell/MainWindow.h"

#include "core/App.h"
#include "platform/values/Text.h"
#include "reports/ListExport.h"

using namespace Qt::StringLiterals;

namespace {

const auto homepage = QStringLiteral(ZOLMARK_HOMEPAGE);

} // namespace

MainWindow::MainWindow(App &app)
    : selectors(app), journal(app, selectors), balances(app, selectors, journal),
      entryRow(app, selectors, journal, balances), companyProfile(app), cashBooks(app),
      bookingAccounts(app), cashReport(app, selectors, journal, balances, companyProfile),
      accountingExport(app, selectors), PagePanel1(u"PagePanel1"_s), app_(app) {
    connect(&journal.CashList, &Listbox::CellClick, this, &MainWindow::CashList_CellClick);
    // Who chooses a row by keys has its commands too.
    connect(&journal.CashList, &Listbox::KeyDown, this, &MainWindow::CashList_CellClick);
    connect(&journal.CashList, &Listbox::LostFocus, this, [this] { EnableRowCommands(false); });
    connect(&MainWindowToolbar, &MainToolbar::Action, this, &MainWindow::MainWindowToolbar_Action);
    AddMenuHandlers();
}

void MainWindow::AddMenuHandlers() {
    const auto run = [this](const MenuItem &item, const QString &word) {
        connect(&item, &MenuItem::Action, this, [this, word] { MenuAction(word); });
    };
    run(menuBar.DataMenu().Child(u"NewSaleItem"), u"new"_s);
    run(menuBar.DataMenu().Child(u"EditItem"), u"edit"_s);
    run(menuBar.DataMenu().Child(u"CopyItem"), u"copy"_s);
    run(menuBar.DataMenu().Child(u"DeleteItem"), u"delete"_s);
    run(menuBar.FileMenu().Child(u"FilePrint"), u"print"_s);
    run(menuBar.FileMenu().Child(u"FileExport"), u"export"_s);
    run(menuBar.FileMenu().Child(u"FilePreferences"), u"preferences"_s);
    run(menuBar.FileMenu().Child(u"AboutItem"), u"about"_s);
    connect(&menuBar.FileMenu().Child(u"FileOpen"), &MenuItem::Action, this,
            &MainWindow::FileOpen_Action);
    const auto show = [this](const MenuItem &item, const QString &address) {
        connect(&item, &MenuItem::Action, this,
                [this, address] { app_.GetDesktop().ShowURL(address); });
    };
    show(menuBar.HilfeMenu().Child(u"HomepageItem"), homepage);
    show(menuBar.HilfeMenu().Child(u"SupportItem"), homepage + u"service-support/"_s);
    connect(&menuBar.HilfeMenu().Child(u"QuickReferenceItem"), &MenuItem::Action, this,
            [this] { app_.LaunchManual(); });
}

void MainWindow::Event_Open() {
    HideMenuEntries();
    Event_EnableMenuItems();
    {
        const Selectors::Hold oneRefresh(selectors);
        entryRow.NewSale();
        selectors.LoadMonths();
    }
    companyProfile.LoadFields();
    entryRow.DateField.SetFocus();
}

void MainWindow::HideMenuEntries() {
    menuBar.DataMenu().Child(u"EditItem").SetVisible(false);
    menuBar.EditMenu().Child(u"EditSeparator1").SetVisible(false);
    menuBar.FileMenu().Child(u"UntitledSeparator1").SetVisible(false);
}

void MainWindow::Event_Close() {
    EndEdits();
    if (companyProfile.RecordChange()) {
        companyProfile.SaveFields();
    }
}

void MainWindow::Event_EnableMenuItems() {
    for (const QStringView row : {u"EditItem", u"CopyItem", u"DeleteItem"}) {
        menuBar.DataMenu().Child(row).SetEnabled(menuItemEnable_);
    }
    for (const QStringView file : {u"FileOpen", u"FileSaveAs"}) {
        menuBar.FileMenu().Child(file).SetEnabled(false);
        menuBar.FileMenu().Child(file).SetVisible(false);
    }
}

void MainWindow::MenuAction(const QString &word) {
    // A command works on what has been typed.
    EndEdits();
    if (SameText(word, u"new")) {
        entryRow.NewSale();
    } else if (SameText(word, u"edit")) {
        entryRow.EditSale(EntryRow::EditMode::Change);
    } else if (SameText(word, u"copy")) {
        entryRow.EditSale(EntryRow::EditMode::Copy);
    } else if (SameText(word, u"delete")) {
        entryRow.DeleteSale();
    } else if (SameText(word, u"print")) {
        selectors.GetMissing();
        cashReport.Print();
    } else if (SameText(word, u"export")) {
        Export();
    } else if (SameText(word, u"preferences")) {
        EnterPreferences();
    } else if (SameText(word, u"cashbook")) {
        LeavePreferences();
    } else if (SameText(word, u"about")) {
        app_.GetDesktop().ShowAboutPanel();
    }
}

void MainWindow::EnterPreferences() {
    PagePanel1.SetValue(1);
    companyProfile.LoadFields();
    cashBooks.LoadCashBook();
    bookingAccounts.LoadCashAccounts();
    MainWindowToolbar.Item(MainToolbar::PreferencesButton).SetCaption(u"Kassenbuch"_s);
}

void MainWindow::LeavePreferences() {
    PagePanel1.SetValue(0);
    selectors.GetCashbooks();
    MainWindowToolbar.Item(MainToolbar::PreferencesButton).SetCaption(u"Einstellungen"_s);
    if (companyProfile.RecordChange()) {
        companyProfile.SaveFields();
    }
}

void MainWindow::Export() {
    selectors.GetMissing();
    accountingExport.ExportJournal();
    TLXModule::ExportCSV(app_.GetDesktop(), accountingExport.ExportList,
                         app_.kvoDB().DatabaseFile());
}

void MainWindow::EndEdits() {
    cashBooks.CashbookList.EndEdit();
    bookingAccounts.CashaccountList.EndEdit();
}

void MainWindow::EnableRowCommands(bool enabled) {
    for (const int button :
         {MainToolbar::EditButton, MainToolbar::CopyButton, MainToolbar::DeleteButton}) {
        MainWindowToolbar.Item(button).SetEnabled(enabled);
    }
    menuItemEnable_ = enabled;
    Event_EnableMenuItems();
}

void MainWindow::MainWindowToolbar_Action(const ToolItem &item) {
    const QString pageFlip = PagePanel1.Value() != 0 ? u"cashbook"_s : u"preferences"_s;
    const std::pair<QStringView, QString> words[] = {
        {u"NewButton", u"new"_s},     {u"EditButton", u"edit"_s},
        {u"CopyButton", u"copy"_s},   {u"DeleteButton", u"delete"_s},
        {u"PrintButton", u"print"_s}, {u"PreferencesButton", pageFlip}};
    for (const auto &[name, word] : words) {
        if (SameText(item.objectName(), name)) {
            MenuAction(word);
        }
    }
}

void MainWindow::FileOpen_Action() {
    if (app_.DBLoad1()) {
        app_.Connect();
    }
}

void MainWindow::CashList_CellClick() {
    if (journal.CashList.ListCount() >= 1) {
        EnableRowCommands(true);
    }
}
