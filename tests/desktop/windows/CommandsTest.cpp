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
        for (const auto &name : {u"EditButton"_s, u"CopyItem"_s, u"CopyButton"_s, u"DeleteItem"_s, u"DeleteButton"_s}) {
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
                texts.append(each->isSeparator() ? u"-"_s : text.trimmed());
            }
        }
        return texts.join(u", "_s);
    }

    QTableView &list = Find<QTableView>(u"CashList"_s);
};

TEST_F(CommandsTest, AppearInTheMenusWithTheirShortcuts) {
    EXPECT_EQ(MenuTexts(u"FileMenu"_s),
              u"Über Zolmark, E&xport..., -, &Drucken... Ctrl+P, &Einstellungen ..., -, &Quit Ctrl+Q"_s);
    EXPECT_EQ(MenuTexts(u"EditMenu"_s), u"&Undo Ctrl+Z, &Ausschneiden Ctrl+X, &Kopieren Ctrl+C, E&infügen Ctrl+V, "
                                        "&Löschen, -, Alles &markieren Ctrl+A"_s);
    EXPECT_EQ(MenuTexts(u"DataMenu"_s), u"&Neu Ctrl+N, &Duplizieren Ctrl+D, &Löschen Ctrl+L"_s);
    EXPECT_EQ(MenuTexts(u"HilfeMenu"_s), u"Kurzanleitung, -, Support-Anfrage, Hersteller-Homepage"_s);
}

TEST_F(CommandsTest, RunFromTheMenusAndTheToolBar) {
    struct Case {
        QString entry;
        QString opened = {};
        QString row = u"typed"_s;
        bool changes = false;
        int bookings = 1;
        int page = MainWindow::JournalPage;
    };
    const QString homepage = QStringLiteral(ZOLMARK_HOMEPAGE);
    const int preferences = MainWindow::PreferencesPage;
    const Case cases[] = {{u"AboutItem"_s, u"about"_s},
                          {u"FileExport"_s, u"export.txt"_s},
                          {u"FilePrint"_s, u"Kassenbericht"_s},
                          {u"PrintButton"_s, u"Kassenbericht"_s},
                          {u"QuickReferenceItem"_s, env.app.Resources().Child(u"Zolmark.pdf"_s).Path()},
                          {u"SupportItem"_s, homepage + u"service-support/"_s},
                          {u"HomepageItem"_s, homepage},
                          {u"NewSaleItem"_s, {}, u""_s},
                          {u"NewButton"_s, {}, u""_s},
                          {u"EditItem"_s, {}, u"7,00"_s, true},
                          {u"EditButton"_s, {}, u"7,00"_s, true},
                          {u"CopyItem"_s, {}, u"7,00"_s},
                          {u"CopyButton"_s, {}, u"7,00"_s},
                          {.entry = u"DeleteItem"_s, .bookings = 0},
                          {.entry = u"DeleteButton"_s, .bookings = 0},
                          {.entry = u"FilePreferences"_s, .page = preferences},
                          {u"PreferencesButton"_s}, // Returns to the journal.
                          {.entry = u"PreferencesButton"_s, .page = preferences}};
    const EntryRow &row = window.entryRow;
    for (const Case &each : cases) {
        env.Run(u"DELETE FROM cash_journal"_s);
        env.Add({u"2026-01-02"_s, u"E"_s, u"7"_s});
        window.MenuAction(u"new"_s);
        bookings.SetListIndex(0);
        Q_EMIT bookings.KeyDown();
        window.entryRow.NoteField.SetText(u"typed"_s);
        Choose(each.entry);
        EXPECT_EQ(Opened(), each.opened) << qPrintable(each.entry);
        EXPECT_EQ(row.InputField.Text() + row.NoteField.Text(), each.row) << qPrintable(each.entry);
        EXPECT_EQ(row.ChangeButton.Visible(), each.changes) << qPrintable(each.entry);
        EXPECT_EQ(bookings.ListCount(), each.bookings) << qPrintable(each.entry);
        EXPECT_EQ(window.PagePanel1.Value(), each.page) << qPrintable(each.entry);
        EXPECT_EQ(Find<QAction>(u"PreferencesButton"_s).text(),
                  each.page == preferences ? u"Kassenbuch"_s : u"Einstellungen"_s);
    }
}

TEST_F(CommandsTest, NeedASelectedRowAndAFocusedList) {
    Click(list.viewport(), {100, 9});
    EXPECT_EQ(RowCommandStates(), u"-----"_s) << "an empty list has no row";
    env.Add({u"2026-01-02"_s, u"E"_s, u"7"_s});
    env.Add({u"2026-01-03"_s, u"A"_s, u"4"_s});
    Choose(u"NewSaleItem"_s);
    Click(list, 1, 2);
    EXPECT_EQ(RowCommandStates(), u"+++++"_s);
    Choose(u"CopyButton"_s);
    EXPECT_EQ(RowCommandStates(), u"-----"_s);
    list.setFocus();
    EXPECT_EQ(RowCommandStates(), u"-----"_s);
    Type(u"{Up}"_s);
    EXPECT_EQ(RowCommandStates(), u"+++++"_s) << "enabled for the row that the key has selected";
    Type(u"{End}"_s);
    EXPECT_EQ(window.journal.CashList.ListIndex(), 1);
    window.entryRow.DateField.SetFocus();
    Type(u"{Ctrl+L}"_s);
    EXPECT_EQ(bookings.ListCount(), 2);
    Click(list, 0, 2);
    Type(u"{Ctrl+L}{Ctrl+L}"_s);
    EXPECT_EQ(bookings.Cell(-1, Journal::Output), u"4,00"_s);
    EXPECT_EQ(RowCommandStates(), u"+++++"_s);
}

TEST_F(CommandsTest, OfTheEditMenuActOnTheFocusedField) {
    auto &field = Find<QLineEdit>(u"SaleNumberField"_s);
    Click(&field, {5, 5});
    Type(u"ab"_s);
    QString texts;
    for (const auto &entry : {u"EditSelectAll"_s, u"EditCut"_s, u"EditPaste"_s, u"EditPaste"_s, u"EditUndo"_s,
                              u"EditSelectAll"_s, u"EditCopy"_s, u"EditClear"_s}) {
        Type(u"{Alt+B}"_s);
        Choose(entry); // Does nothing while it is disabled.
        QApplication::activePopupWidget()->close();
        texts += u' ' + field.text();
    }
    EXPECT_EQ(texts, u" ab  ab abab ab ab ab "_s);
    field.setFocus();
    Type(u"c{Ctrl+V}{Ctrl+Z}"_s);
    EXPECT_EQ(field.text(), u"c"_s) << "typed and pasted text are separate undo steps";
}

TEST(MainWindowView, SavesTypedTextHoweverTheProgramEnds) {
    struct Case {
        const char *end;
        std::function<void(MainWindowView &)> run;
    };
    const Case cases[] = {{"the menu", [](auto &view) { Type(view.windowHandle(), u"{Ctrl+Q}"_s); }},
                          {"the window's button", [](auto &view) { view.close(); }},
                          {"the session, that may go on after all",
                           [](auto &view) {
                               // There is no QSessionManager in a test.
                               QMetaObject::invokeMethod(qApp, "commitDataRequest",
                                                         QGenericArgument("QSessionManager&", &view));
                               view.hide();
                           }},
                          {"SIGTERM", [](auto & /*view*/) { std::raise(SIGTERM); }},
                          {"SIGINT", [](auto & /*view*/) { std::raise(SIGINT); }},
                          {"SIGHUP", [](auto & /*view*/) { std::raise(SIGHUP); }}};
    const TerminationSignals endOfSession;
    QObject::connect(&endOfSession, &TerminationSignals::Raised, qApp, &QApplication::closeAllWindows);
    for (const Case &each : cases) {
        TestEnvironment env;
        MainWindow window(env.app);
        MainWindowView view(window, env.app.Locale(), env.app.Resources());
        window.Event_Open();
        view.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
        window.MenuAction(u"preferences"_s);
        window.companyProfile.CompanyField.SetText(u"Neu"_s);
        window.cashBooks.CashbookList.EditCell(0, CashBooks::Name);
        window.cashBooks.CashbookList.SetEditText(u"Laden"_s);
        each.run(view);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !view.isVisible(); })) << each.end;
        EXPECT_EQ(env.Value(u"SELECT company || name FROM core_company, cash_book"_s), u"NeuLaden"_s) << each.end;
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
    EXPECT_TRUE(texts.contains(u"Meldung"_s) && window.isVisible());
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
        for (int i = 0; i < 3; ++i) { application.ShowException(std::runtime_error("Meldung")); }
        after.show(); // As the main window is shown after the message of the sample database.
    });
    EXPECT_EQ(RunEventLoop(), EXIT_SUCCESS);
    EXPECT_EQ(messages, 1);
    EXPECT_FALSE(before.isVisible() || after.isVisible());
}
