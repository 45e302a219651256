#include "shell/MainWindow.h"
#include "shell/qt/MainWindowView.h"
#include "support/Book.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The preferences in the real main window, with the accounts b (E, active), c (A, not active).
class PreferencesPageTest : public testing::Test {
protected:
    PreferencesPageTest() {
        book.Run(u"DELETE FROM cash_accounts"_s);
        book.Run(u"INSERT INTO cash_accounts (name, account, type, active) VALUES "
                 "('b', '20', 'E', 1), ('c', '10', 'A', 0)"_s);
        window.Event_Open();
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        FlipPage();
    }

    void FlipPage() {
        view.findChild<QAction *>(u"PreferencesButton"_s)->trigger();
        QApplication::processEvents(); // The page paints.
    }
    static void Press(QWidget *widget, QPoint place) {
        QTest::mouseClick(widget->window()->windowHandle(), Qt::LeftButton, {},
                          widget->mapTo(widget->window(), place));
    }
    static void Click(QTableView &list, int row, int column) {
        const QRect cell = list.visualRect(list.model()->index(row, column));
        Press(list.viewport(), cell.center());
    }
    void PressHalf(const QString &name, int x) { Press(view.findChild<QWidget *>(name), {x, 14}); }
    void PressPlus(const QString &name) { PressHalf(name, 10); }
    void PressMinus(const QString &name) { PressHalf(name, 40); }

    /// Types into the open cell and ends with a key.
    static void Type(const QString &text, Qt::Key end) {
        auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        ASSERT_TRUE(editor);
        ASSERT_EQ(editor->objectName(), u"CellEditor"_s);
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, end);
    }
    QString Accounts() const {
        return book.Value(u"SELECT group_concat(name || account || type || active, ' ') "
                          "FROM (SELECT * FROM cash_accounts ORDER BY id)"_s);
    }
    QString CashBooks() const {
        return book.Value(u"SELECT group_concat(name || ' ' || account || ' ' || "
                          "opening_balance, ', ') FROM cash_book"_s);
    }

    Book book;
    MainWindow window{book.app};
    MainWindowView view{window, book.app};
    QTableView &books = *view.findChild<QTableView *>(u"CashbookList"_s);
    QTableView &accounts = *view.findChild<QTableView *>(u"CashaccountList"_s);
};

TEST_F(PreferencesPageTest, OpensACellWithAClickAndWritesItAsToldByTheKeys) {
    Click(accounts, 0, 0);
    Type(u"bb"_s, Qt::Key_Tab);
    Type(u"21"_s, Qt::Key_Tab);
    Type(u"bbb"_s, Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), &accounts);
    EXPECT_EQ(Accounts(), u"bbb21E1 c10A0"_s);
    Click(accounts, 1, 1);
    Type(u"99"_s, Qt::Key_Escape);
    EXPECT_EQ(Accounts(), u"bbb21E1 c10A0"_s);
    QTest::keyClick(&accounts, Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), u"d"_s);
    Press(&view, {5, view.height() - 5}); // On nothing.
    EXPECT_EQ(Accounts(), u"bbb21E1 d10A0"_s);
    EXPECT_EQ(window.bookingAccounts.CashaccountList.EditedRow(), -1);
}

TEST_F(PreferencesPageTest, ChecksChoosesAndSortsByClicks) {
    Click(accounts, 0, BookingAccounts::Active);
    QTest::keyClick(&accounts, Qt::Key_Down);
    QTest::keyClick(&accounts, Qt::Key_Space);
    EXPECT_EQ(Accounts(), u"b20E0 c10A1"_s);
    book.desktop.menuChoice = 1;
    Click(accounts, 0, BookingAccounts::Kind);
    EXPECT_EQ(Accounts(), u"b20A0 c10A1"_s);
    const auto pressHeading = [this](int column) {
        const QHeaderView *heading = accounts.horizontalHeader();
        Press(heading->viewport(), {heading->sectionViewportPosition(column) + 5, 5});
    };
    const Listbox &list = window.bookingAccounts.CashaccountList;
    pressHeading(BookingAccounts::Account);
    EXPECT_EQ(list.Cell(-1, 0), u"c\nb"_s);
    pressHeading(BookingAccounts::Active);
    EXPECT_EQ(list.Cell(-1, 0), u"b\nc"_s);
    pressHeading(BookingAccounts::Active);
    EXPECT_EQ(list.Cell(-1, 0), u"c\nb"_s);
    Press(accounts.viewport(), {50, 200}); // Below the last row: the selection stays.
    EXPECT_EQ(accounts.selectionModel()->selectedRows().size(), 1);
}

TEST_F(PreferencesPageTest, AddsAndRemovesWhileACellIsOpen) {
    PressPlus(u"CashBookAdd"_s);
    Type(u"Laden"_s, Qt::Key_Tab);
    Type(u"1000"_s, Qt::Key_Tab); // Taken: the book keeps its number.
    Type(u"12,50"_s, Qt::Key_Tab);
    PressPlus(u"CashBookAdd"_s);
    EXPECT_EQ(book.desktop.messages.size(), 1); // 1000 + 10 is the first one's number.
    window.cashBooks.LoadCashBook();
    PressPlus(u"CashBookAdd"_s);
    QTest::keyClicks(QApplication::focusWidget(), u"Markt"_s);
    PressMinus(u"CashBookAdd"_s);
    EXPECT_EQ(CashBooks(), u"Kasse 1000 100.0, Laden 1010 12,50"_s);
    Click(books, 0, 0);
    PressMinus(u"CashBookAdd"_s);
    EXPECT_EQ(book.desktop.messages.last(), u"Hauptkasse kann nicht gelöscht werden!"_s);
    const QPoint name = books.visualRect(books.model()->index(1, 0)).center();
    Press(books.viewport(), name);
    QTest::mouseDClick(books.viewport(), Qt::LeftButton, {}, name);
    Type(u"Lager"_s, Qt::Key_Return);
    PressPlus(u"AccountsAdd"_s);
    Type(u"Aa"_s, Qt::Key_Return);
    EXPECT_EQ(window.bookingAccounts.CashaccountList.ListIndex(), 2);
    PressMinus(u"AccountsAdd"_s);
    EXPECT_EQ(Accounts(), u"b20E1 c10A0"_s);
    FlipPage();
    EXPECT_EQ(window.selectors.CashbookPopup.List(1), u"1010:Lager"_s);
}

TEST_F(PreferencesPageTest, SavesWhatIsTypedWhenThePageOrTheWindowGoes) {
    const auto company = [this] { return book.Value(u"SELECT company FROM core_company"_s); };
    auto &field = *view.findChild<QLineEdit *>(u"CompanyField"_s);
    EXPECT_EQ(field.text(), u"Muster"_s);
    field.selectAll();
    QTest::keyClicks(&field, u"Holz"_s);
    Click(accounts, 0, 0);
    QTest::keyClicks(QApplication::focusWidget(), u"x"_s);
    FlipPage();
    EXPECT_EQ(company(), u"Holz"_s);
    EXPECT_EQ(Accounts(), u"x20E1 c10A0"_s);
    book.Add({.date = u"2026-01-05"_s, .type = u"E"_s, .amount = u"7"_s, .cashbook = u"2"_s});
    book.Run(u"INSERT INTO cash_book (name, account, opening_balance) VALUES ('L', '1', '0')"_s);
    FlipPage();
    Click(books, 1, 0);
    QTest::keyClick(&books, Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), u"M"_s);
    field.insert(u"!"_s);
    view.close();
    EXPECT_EQ(company(), u"Holz!"_s);
    EXPECT_EQ(CashBooks(), u"Kasse 1000 100.0, M 1 0.0"_s);
}

TEST_F(PreferencesPageTest, ShowsTheMainCashBookAfterTheShownOneWasRemoved) {
    book.Run(u"INSERT INTO cash_book (name, account, opening_balance) VALUES ('L', '1', '0')"_s);
    book.Add({.date = u"2026-01-05"_s, .type = u"E"_s, .amount = u"7"_s, .cashbook = u"2"_s});
    FlipPage();
    window.selectors.CashbookPopup.SetListIndex(1);
    EXPECT_EQ(window.journal.CashList.ListCount(), 1);
    FlipPage();
    Click(books, 1, 0);
    PressMinus(u"CashBookAdd"_s);
    FlipPage();
    EXPECT_EQ(window.selectors.CashbookPopup.Text(), u"1000:Kasse"_s);
    EXPECT_EQ(window.journal.CashList.ListCount(), 0);
    EXPECT_EQ(book.Value(u"SELECT count(*) FROM cash_journal"_s), u"1"_s);
}

} // namespace
