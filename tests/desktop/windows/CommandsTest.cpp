#include "desktop/TerminationSignals.h"
#include "desktop/ZolmarkApplication.h"
#include "support/MainWindowTest.h"
#include "support/ModalWindows.h"

#include <csignal>

class CommandsTest : public MainWindowTest {
protected:
    CommandsTest() { Open(); }

    void Choose(const QString &action) { Find<QAction>(action).trigger(); }
    QString RowCommandStates() {
        QString states;
        for (const auto &name :
             {"EditButton", "CopyItem", "CopyButton", "DeleteItem", "DeleteButton"}) {
            states += Find<QAction>(name).isEnabled() ? u'+' : u'-';
        }
        return states;
    }

    QString Opened() { return std::exchange(env.desktop.opened, {}).join(u' '); }
    QString MenuTexts(const QString &menu) {
        QStringList texts;
        for (const QAction *each : Find<QMenu>(menu).actions()) {
            if (each->isVisible()) {
                const QString text = each->text() + u' ' + each->shortcut().toString();
                texts.append(each->isSeparator() ? "-" : text.trimmed());
            }
        }
        return texts.join(", ");
    }

    QTableView &list = Find<QTableView>("CashList");
};

TEST_F(CommandsTest, AppearInTheMenusWithTheirShortcuts) {
    EXPECT_EQ(
        MenuTexts("FileMenu"),
        "Über Zolmark, E&xport..., -, &Drucken... Ctrl+P, &Einstellungen ..., -, &Quit Ctrl+Q");
    EXPECT_EQ(MenuTexts("EditMenu"),
              "&Undo Ctrl+Z, &Ausschneiden Ctrl+X, &Kopieren Ctrl+C, E&infügen Ctrl+V, "
              "&Löschen, -, Alles &markieren Ctrl+A");
    EXPECT_EQ(MenuTexts("DataMenu"), "&Neu Ctrl+N, &Duplizieren Ctrl+D, &Löschen Ctrl+L");
    EXPECT_EQ(MenuTexts("HilfeMenu"), "Kurzanleitung, -, Support-Anfrage, Hersteller-Homepage");
}

TEST_F(CommandsTest, RunFromTheMenusAndTheToolBar) {
    struct Case {
        QString entry;
        QString opened = {};
        QString row = "typed";
        bool changes = false;
        int bookings = 1;
        int page = MainWindow::JournalPage;
    };
    const QString homepage = QStringLiteral(ZOLMARK_HOMEPAGE);
    const int preferences = MainWindow::PreferencesPage;
    const Case cases[] = {{"AboutItem", "about"},
                          {"FileExport", "export.txt"},
                          {"FilePrint", "Kassenbericht"},
                          {"PrintButton", "Kassenbericht"},
                          {"QuickReferenceItem", env.app.Resources().Child("Zolmark.pdf").Path()},
                          {"SupportItem", homepage + "service-support/"},
                          {"HomepageItem", homepage},
                          {"NewSaleItem", {}, ""},
                          {"NewButton", {}, ""},
                          {"EditItem", {}, "7,00", true},
                          {"EditButton", {}, "7,00", true},
                          {"CopyItem", {}, "7,00"},
                          {"CopyButton", {}, "7,00"},
                          {.entry = "DeleteItem", .bookings = 0},
                          {.entry = "DeleteButton", .bookings = 0},
                          {.entry = "FilePreferences", .page = preferences},
                          {"PreferencesButton"}, // Returns to the journal.
                          {.entry = "PreferencesButton", .page = preferences}};
    const EntryRow &row = window.entryRow;
    for (const Case &each : cases) {
        env.Run("DELETE FROM cash_journal");
        env.Add({"2026-01-02", "E", "7"});
        window.MenuAction("new");
        bookings.SetListIndex(0);
        Q_EMIT bookings.KeyDown();
        window.entryRow.NoteField.SetText("typed");
        Choose(each.entry);
        EXPECT_EQ(Opened(), each.opened) << each.entry;
        EXPECT_EQ(row.InputField.Text() + row.NoteField.Text(), each.row) << each.entry;
        EXPECT_EQ(row.ChangeButton.Visible(), each.changes) << each.entry;
        EXPECT_EQ(bookings.ListCount(), each.bookings) << each.entry;
        EXPECT_EQ(window.PagePanel1.Value(), each.page) << each.entry;
        EXPECT_EQ(Find<QAction>("PreferencesButton").text(),
                  each.page == preferences ? "Kassenbuch" : "Einstellungen");
    }
}

TEST_F(CommandsTest, NeedASelectedRowAndAFocusedList) {
    Click(list.viewport(), {100, 9});
    EXPECT_EQ(RowCommandStates(), "-----") << "an empty list has no row";
    env.Add({"2026-01-02", "E", "7"});
    env.Add({"2026-01-03", "A", "4"});
    Choose("NewSaleItem");
    Click(list, 1, 2);
    EXPECT_EQ(RowCommandStates(), "+++++");
    Choose("CopyButton");
    EXPECT_EQ(RowCommandStates(), "-----");
    list.setFocus();
    EXPECT_EQ(RowCommandStates(), "-----");
    Type("{Up}");
    EXPECT_EQ(RowCommandStates(), "+++++") << "enabled for the row that the key has selected";
    Type("{End}");
    EXPECT_EQ(window.journal.CashList.ListIndex(), 1);
    window.entryRow.DateField.SetFocus();
    Type("{Ctrl+L}");
    EXPECT_EQ(bookings.ListCount(), 2);
    Click(list, 0, 2);
    Type("{Ctrl+L}{Ctrl+L}");
    EXPECT_EQ(bookings.Cell(-1, Journal::Output), "4,00");
    EXPECT_EQ(RowCommandStates(), "+++++");
}

TEST_F(CommandsTest, OfTheEditMenuActOnTheFocusedField) {
    auto &field = Find<QLineEdit>("SaleNumberField");
    Click(&field, {5, 5});
    Type("ab");
    QString texts;
    for (const QString entry : {"EditSelectAll", "EditCut", "EditPaste", "EditPaste", "EditUndo",
                                "EditSelectAll", "EditCopy", "EditClear"}) {
        Type("{Alt+B}");
        Choose(entry); // Does nothing while it is disabled.
        QApplication::activePopupWidget()->close();
        texts += u' ' + field.text();
    }
    EXPECT_EQ(texts, " ab  ab abab ab ab ab ");
    field.setFocus();
    Type("c{Ctrl+V}{Ctrl+Z}");
    EXPECT_EQ(field.text(), "c") << "typed and pasted text are separate undo steps";
}

TEST(MainWindowView, SavesTypedTextHoweverTheProgramEnds) {
    struct Case {
        const char *end;
        std::function<void(MainWindowView &)> run;
    };
    const Case cases[] = {{"the menu", [](auto &view) { Type(view.windowHandle(), "{Ctrl+Q}"); }},
                          {"the window's button", [](auto &view) { view.close(); }},
                          {"the session, that may go on after all",
                           [](auto &view) {
                               // There is no QSessionManager in a test.
                               QMetaObject::invokeMethod(
                                   qApp, "commitDataRequest",
                                   QGenericArgument("QSessionManager&", &view));
                               view.hide();
                           }},
                          {"SIGTERM", [](auto & /*view*/) { std::raise(SIGTERM); }},
                          {"SIGINT", [](auto & /*view*/) { std::raise(SIGINT); }},
                          {"SIGHUP", [](auto & /*view*/) { std::raise(SIGHUP); }}};
    const TerminationSignals endOfSession;
    QObject::connect(&endOfSession, &TerminationSignals::Raised, qApp,
                     &QApplication::closeAllWindows);
    for (const Case &each : cases) {
        TestEnvironment env;
        MainWindow window(env.app);
        MainWindowView view(window, env.app.Locale(), env.app.Resources());
        window.Event_Open();
        view.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
        window.MenuAction("preferences");
        window.companyProfile.CompanyField.SetText("Neu");
        window.cashBooks.CashbookList.EditCell(0, CashBooks::Name);
        window.cashBooks.CashbookList.SetEditText("Laden");
        each.run(view);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !view.isVisible(); })) << each.end;
        EXPECT_EQ(env.Value("SELECT company || name FROM core_company, cash_book"), "NeuLaden")
            << each.end;
    }
}

TEST(ZolmarkApplication, ShowsAnExceptionAndExitsIfNoWindowIsOpen) {
    const auto fail = [] { throw std::runtime_error("Meldung"); };
    QWidget window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const QStringList texts = Press(Qt::Key_Return, [&] {
        QMetaObject::invokeMethod(&window, fail, Qt::QueuedConnection);
        QApplication::processEvents();
    });
    EXPECT_TRUE(texts.contains("Meldung") && window.isVisible());
    window.close();
    QTimer close;
    QObject::connect(&close, &QTimer::timeout, &close, &QApplication::closeAllWindows);
    close.start(1);
    QTimer::singleShot(0, &close, fail);
    EXPECT_EQ(RunEventLoop(), EXIT_FAILURE);
}

TEST(ZolmarkApplication, ExitsDuringAMessageAndShowsNoOther) {
    auto &application = *static_cast<ZolmarkApplication *>(qApp);
    QWidget before;
    QWidget after;
    before.show();
    int messages = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (QApplication::activeModalWidget()) {
            ++messages;
            application.End();
        }
    });
    timer.start(1);
    QTimer::singleShot(0, &timer, [&] {
        for (int i = 0; i < 3; ++i) {
            application.ShowException(std::runtime_error("Meldung"));
        }
        after.show(); // As the main window is shown after the message of the sample database.
    });
    EXPECT_EQ(RunEventLoop(), EXIT_SUCCESS);
    EXPECT_EQ(messages, 1);
    EXPECT_FALSE(before.isVisible() || after.isVisible());
}
