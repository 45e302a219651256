#include "shell/MainWindow.h"

#include "core/App.h"
#include "platform/values/Text.h"
#include "reports/ListExport.h"

#include <algorithm>
#include <functional>

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
    for (int place = 0; place < MainWindowToolbar.Count(); ++place) {
        RequireCommand(MainWindowToolbar.Item(place).Word());
    }
    AddMenuHandlers();
}

const MainWindow::Command MainWindow::commands[] = {
    {u"new", [](MainWindow &at) { at.entryRow.NewSale(); }},
    {u"edit", [](MainWindow &at) { at.entryRow.EditSale(EntryRow::EditMode::Change); }},
    {u"copy", [](MainWindow &at) { at.entryRow.EditSale(EntryRow::EditMode::Copy); }},
    {u"delete", [](MainWindow &at) { at.entryRow.DeleteSale(); }},
    {u"print", [](MainWindow &at) { at.Print(); }},
    {u"export", [](MainWindow &at) { at.Export(); }},
    {u"preferences", [](MainWindow &at) { at.OpenPreferences(); }},
    {u"cashbook", [](MainWindow &at) { at.ClosePreferences(); }},
    {u"about", [](MainWindow &at) { at.app_.GetDesktop().ShowAboutPanel(); }},
};

const MainWindow::Command *MainWindow::Find(const QString &word) {
    const auto *const found =
        std::find_if(std::begin(commands), std::end(commands),
                     [&word](const Command &command) { return SameText(command.word, word); });
    return found == std::end(commands) ? nullptr : found;
}

void MainWindow::MenuAction(const QString &word) {
    if (const Command *command = Find(word)) {
        // A command works on what has been typed.
        EndEdits();
        command->run(*this);
    }
}

void MainWindow::RequireCommand(const QString &word) {
    if (!word.isEmpty() && Find(word) == nullptr) {
        qFatal("There is no command %s.", qUtf8Printable(word));
    }
}

void MainWindow::AddMenuHandlers() {
    for (int place = 0; place < menuBar.Count(); ++place) {
        MenuItem &menu = menuBar.Item(place);
        for (int entry = 0; entry < menu.Count(); ++entry) {
            AddMenuHandler(menu.Item(entry));
        }
    }
    const auto run = [this](const MenuItem &item, const std::function<void()> &handler) {
        connect(&item, &MenuItem::Action, this, handler);
    };
    run(menuBar.FileMenu().Child(u"FileOpen"), [this] { FileOpen_Action(); });
    run(menuBar.HilfeMenu().Child(u"HomepageItem"),
        [this] { app_.GetDesktop().ShowURL(homepage); });
    run(menuBar.HilfeMenu().Child(u"SupportItem"),
        [this] { app_.GetDesktop().ShowURL(homepage + u"service-support/"_s); });
    run(menuBar.HilfeMenu().Child(u"QuickReferenceItem"), [this] { app_.LaunchManual(); });
}

void MainWindow::AddMenuHandler(const MenuItem &item) {
    RequireCommand(item.Word());
    if (!item.Word().isEmpty()) {
        connect(&item, &MenuItem::Action, this, [this, word = item.Word()] { MenuAction(word); });
    }
}

void MainWindow::Event_Open() {
    HideMenuEntries();
    Event_EnableMenuItems();
    selectors.ChangeTogether([this] {
        entryRow.NewSale();
        selectors.LoadMonths();
    });
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

void MainWindow::OpenPreferences() {
    PagePanel1.SetValue(PreferencesPage);
    companyProfile.LoadFields();
    cashBooks.LoadCashBook();
    bookingAccounts.LoadCashAccounts();
    MainWindowToolbar.Item(MainToolbar::PreferencesButton).SetCaption(u"Kassenbuch"_s);
}

void MainWindow::ClosePreferences() {
    PagePanel1.SetValue(JournalPage);
    selectors.GetCashbooks();
    MainWindowToolbar.Item(MainToolbar::PreferencesButton).SetCaption(u"Einstellungen"_s);
    if (companyProfile.RecordChange()) {
        companyProfile.SaveFields();
    }
}

void MainWindow::Print() {
    selectors.LoadMissing();
    cashReport.Print();
}

void MainWindow::Export() {
    selectors.LoadMissing();
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
    // The button that leads to the preferences leads back from there.
    const bool back = item.Word() == u"preferences"_s && PagePanel1.Value() != JournalPage;
    MenuAction(back ? u"cashbook"_s : item.Word());
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
