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
    // Selecting a row by key enables its commands too.
    connect(&journal.CashList, &Listbox::KeyDown, this, &MainWindow::CashList_CellClick);
    connect(&journal.CashList, &Listbox::LostFocus, this, [this] { EnableRowCommands(false); });
    connect(&MainWindowToolbar, &MainToolbar::Action, this, &MainWindow::MainWindowToolbar_Action);
    for (int index = 0; index < MainWindowToolbar.Count(); ++index) {
        RequireCommand(MainWindowToolbar.Item(index).Command());
    }
    AddMenuHandlers();
}

const MainWindow::Command MainWindow::commands[] = {
    {u"new", [](MainWindow &window) { window.entryRow.NewSale(); }},
    {u"edit", [](MainWindow &window) { window.entryRow.EditSale(EntryRow::EditMode::Change); }},
    {u"copy", [](MainWindow &window) { window.entryRow.EditSale(EntryRow::EditMode::Copy); }},
    {u"delete", [](MainWindow &window) { window.entryRow.DeleteSale(); }},
    {u"print", [](MainWindow &window) { window.Print(); }},
    {u"export", [](MainWindow &window) { window.Export(); }},
    {u"preferences", [](MainWindow &window) { window.OpenPreferences(); }},
    {u"cashbook", [](MainWindow &window) { window.ClosePreferences(); }},
    {u"about", [](MainWindow &window) { window.app_.GetDesktop().ShowAboutPanel(); }},
};

const MainWindow::Command *MainWindow::FindCommand(const QString &name) {
    const auto *const found =
        std::find_if(std::begin(commands), std::end(commands),
                     [&name](const Command &command) { return SameText(command.name, name); });
    return found == std::end(commands) ? nullptr : found;
}

void MainWindow::MenuAction(const QString &name) {
    if (const Command *command = FindCommand(name)) {
        // Write typed text first, so that the command works on current data.
        EndEdits();
        command->run(*this);
    }
}

void MainWindow::RequireCommand(const QString &name) {
    if (!name.isEmpty() && FindCommand(name) == nullptr) {
        qFatal("There is no command %s.", qUtf8Printable(name));
    }
}

void MainWindow::AddMenuHandlers() {
    for (int menuIndex = 0; menuIndex < menuBar.Count(); ++menuIndex) {
        MenuItem &menu = menuBar.Item(menuIndex);
        for (int index = 0; index < menu.Count(); ++index) {
            AddMenuHandler(menu.Item(index));
        }
    }
    const auto connectItem = [this](const MenuItem &item, const std::function<void()> &handler) {
        connect(&item, &MenuItem::Action, this, handler);
    };
    connectItem(menuBar.FileMenu().Child(u"FileOpen"), [this] { FileOpen_Action(); });
    connectItem(menuBar.HilfeMenu().Child(u"HomepageItem"),
                [this] { app_.GetDesktop().ShowURL(homepage); });
    connectItem(menuBar.HilfeMenu().Child(u"SupportItem"),
                [this] { app_.GetDesktop().ShowURL(homepage + u"service-support/"_s); });
    connectItem(menuBar.HilfeMenu().Child(u"QuickReferenceItem"), [this] { app_.LaunchManual(); });
}

void MainWindow::AddMenuHandler(const MenuItem &item) {
    RequireCommand(item.Command());
    if (!item.Command().isEmpty()) {
        connect(&item, &MenuItem::Action, this,
                [this, name = item.Command()] { MenuAction(name); });
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
    for (const QStringView name : {u"EditItem", u"CopyItem", u"DeleteItem"}) {
        menuBar.DataMenu().Child(name).SetEnabled(menuItemEnable_);
    }
    for (const QStringView name : {u"FileOpen", u"FileSaveAs"}) {
        menuBar.FileMenu().Child(name).SetEnabled(false);
        menuBar.FileMenu().Child(name).SetVisible(false);
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
    // The preferences button also leads back to the journal.
    const bool leavesPreferences =
        item.Command() == u"preferences"_s && PagePanel1.Value() != JournalPage;
    MenuAction(leavesPreferences ? u"cashbook"_s : item.Command());
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
