#include "desktop/TerminationSignals.h"
#include "desktop/ZolmarkApplication.h"
#include "support/MainWindowTest.h"

#include <QAction>
#include <QMenu>
#include <QTimer>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

class CommandsTest : public MainWindowTest {
protected:
    CommandsTest() { Open(); }

    void Choose(const QString &action) { Find<QAction>(action).trigger(); }
    /// Which commands on a row are open, in the tool bar and in the menu.
    QString RowCommands() {
        QString open;
        for (const auto &name : {u"EditButton"_s, u"CopyButton"_s, u"DeleteItem"_s}) {
            open += Find<QAction>(name).isEnabled() ? u'+' : u'-';
        }
        return open;
    }

    QTableView &list = Find<QTableView>(u"CashList"_s);
};

TEST_F(CommandsTest, AreReachedByTheEntriesOfTheMenusOnEitherPage) {
    book.desktop.paper.emplace();
    for (const auto &[page, print] : {std::pair(0, u"{Alt+D}d"_s), std::pair(1, u"{Ctrl+P}"_s)}) {
        window.PagePanel1.SetValue(page);
        Type(print + u"{Alt+D}x"_s);
        EXPECT_FALSE(std::exchange(book.desktop.paper, QStringList())->isEmpty());
        EXPECT_TRUE(std::exchange(book.desktop.saveDialog, std::nullopt));
        window.entryRow.NoteField.SetText(u"half typed"_s);
        Type(u"{Ctrl+N}"_s);
        EXPECT_EQ(window.entryRow.NoteField.Text(), u""_s);
        EXPECT_EQ(window.PagePanel1.Value(), page);
    }
}

TEST_F(CommandsTest, OnARowAreOpenFromAClickInItUntilTheFocusLeavesTheList) {
    Click(list.viewport(), {100, 9});
    EXPECT_EQ(RowCommands(), u"---"_s) << "an empty list has no row";
    book.Add({u"2026-01-02"_s, u"E"_s, u"7"_s});
    book.Add({u"2026-01-03"_s, u"A"_s, u"4"_s});
    Choose(u"NewSaleItem"_s);
    Click(list, 1, 2);
    EXPECT_EQ(RowCommands(), u"+++"_s);
    Choose(u"CopyButton"_s);
    EXPECT_EQ(RowCommands(), u"---"_s);
    list.setFocus();
    EXPECT_EQ(RowCommands(), u"---"_s);
    Type(u"{Up}"_s);
    EXPECT_EQ(RowCommands(), u"+++"_s) << "of the row that the key has chosen";
    window.entryRow.DateField.SetFocus();
    Type(u"{Ctrl+L}"_s);
    EXPECT_EQ(bookings.ListCount(), 2);
    Click(list, 0, 2);
    Type(u"{Ctrl+L}{Ctrl+L}"_s);
    EXPECT_EQ(bookings.Cell(-1, Journal::Output), u"4,00"_s);
    EXPECT_EQ(RowCommands(), u"+++"_s);
}

TEST_F(CommandsTest, OfTheEditMenuActOnTheFocusedField) {
    auto &field = Find<QLineEdit>(u"SaleNumberField"_s);
    Click(&field, {5, 5});
    Type(u"ab"_s);
    QString texts;
    for (const auto &entry : {u"EditSelectAll"_s, u"EditCut"_s, u"EditPaste"_s, u"EditPaste"_s,
                              u"EditUndo"_s, u"EditSelectAll"_s, u"EditCopy"_s, u"EditClear"_s}) {
        Type(u"{Alt+B}"_s);
        Choose(entry); // Does nothing while it is disabled.
        QApplication::activePopupWidget()->close();
        texts += u' ' + field.text();
    }
    EXPECT_EQ(texts, u" ab  ab abab ab ab ab "_s);
    field.setFocus();
    Type(u"c{Ctrl+V}{Ctrl+Z}"_s);
    EXPECT_EQ(field.text(), u"c"_s) << "what was typed before is a step of its own";
    list.setFocus();
    EXPECT_FALSE(Find<QAction>(u"EditPaste"_s).isEnabled());
}

TEST(MainWindowView, SavesWhatIsTypedHoweverTheProgramEnds) {
    const TerminationSignals endOfSession;
    QObject::connect(&endOfSession, &TerminationSignals::Raised, qApp,
                     &QApplication::closeAllWindows);
    const std::function<void(MainWindowView &)> ends[] = {
        [](MainWindowView &view) { Type(view.windowHandle(), u"{Ctrl+Q}"_s); },
        [](MainWindowView & /*view*/) { std::raise(SIGTERM); }};
    for (const auto &end : ends) {
        Book book;
        MainWindow window(book.app);
        MainWindowView view(window, book.app);
        window.Event_Open();
        view.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
        window.MenuAction(u"preferences"_s);
        window.companyProfile.CompanyField.SetText(u"Neu"_s);
        window.cashBooks.CashbookList.EditCell(0, CashBooks::Name);
        window.cashBooks.CashbookList.SetEditText(u"Laden"_s);
        end(view);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !view.isVisible(); }));
        EXPECT_EQ(book.Value(u"SELECT company || name FROM core_company, cash_book"_s),
                  u"NeuLaden"_s);
    }
}

TEST(ZolmarkApplication, EndsAfterAnExceptionThatLeftNoWindow) {
    QTimer close;
    QObject::connect(&close, &QTimer::timeout, &close, &QApplication::closeAllWindows);
    close.start(10);
    QTimer::singleShot(0, &close, [] { throw std::runtime_error("Meldung"); });
    EXPECT_EQ(QApplication::exec(), EXIT_FAILURE);
}

TEST(ZolmarkApplication, EndsBehindAMessageAndOpensNoOther) {
    auto &application = *static_cast<ZolmarkApplication *>(qApp);
    QWidget before;
    QWidget after;
    before.show();
    int messages = 0;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        if (QApplication::activeModalWidget()) {
            ++messages;
            application.End();
        }
    });
    look.start(10);
    QTimer::singleShot(0, &look, [&] {
        for (int i = 0; i < 3; ++i) {
            application.Tell(std::runtime_error("Meldung"));
        }
        after.show(); // As the main window does after the message of the sample book.
    });
    QTimer::singleShot(10'000, &look, [] { QApplication::exit(EXIT_FAILURE); });
    EXPECT_EQ(QApplication::exec(), EXIT_SUCCESS);
    EXPECT_EQ(messages, 1);
    EXPECT_FALSE(before.isVisible() || after.isVisible());
}

} // namespace
