#include "shell/MainWindow.h"
#include "shell/qt/MainWindowView.h"
#include "support/Book.h"

#include <QComboBox>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The main window on the screen. A test fills the book and opens the window.
class JournalPageTest : public testing::Test {
protected:
    void Open() {
        window.Event_Open();
        view.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    }
    QComboBox &Menu(const QString &name) { return *view.findChild<QComboBox *>(name); }

    Book book;
    MainWindow window{book.app};
    MainWindowView view{window, book.app};
    QTableView &list = *view.findChild<QTableView *>(u"CashList"_s);
};

TEST_F(JournalPageTest, ShowsTheBookingsOfThePeriodThatTheKeysChoose) {
    book.Run(u"INSERT INTO cash_book (name, account) VALUES ('Laden', '1010')"_s);
    book.Add({u"2026-01-10"_s, u"E"_s, u"10"_s});
    book.Add({u"2026-02-10"_s, u"A"_s, u"2.5"_s});
    book.Add({u"2025-02-10"_s, u"A"_s, u"1"_s});
    book.Add({.date = u"2025-02-11"_s, .type = u"E"_s, .amount = u"7"_s, .cashbook = u"2"_s});
    Open();
    const std::tuple<QString, QList<Qt::Key>, QString, QString> steps[] = {
        {u"MonthPopup"_s, {}, u"Alle Monate"_s, u"109,00\n106,50"_s},
        {u"MonthPopup"_s, {Qt::Key_Down, Qt::Key_Down}, u"Februar"_s, u"106,50"_s},
        {u"YearPopup"_s, {Qt::Key_Down}, u"2025"_s, u"99,00"_s},
        {u"CashbookPopup"_s, {Qt::Key_End}, u"1010:Laden"_s, u"7,00"_s},
        {u"MonthPopup"_s, {Qt::Key_D}, u"Dezember"_s, u""_s}};
    for (const auto &[name, keys, text, balances] : steps) {
        QComboBox &menu = Menu(name);
        menu.setFocus();
        for (const Qt::Key key : keys) {
            QTest::keyClick(&menu, key);
        }
        EXPECT_EQ(menu.currentText(), text);
        EXPECT_EQ(window.journal.CashList.Cell(-1, Journal::Balance), balances);
    }
}

TEST_F(JournalPageTest, LetsTheWheelTurnOnlyTheControlWithTheFocus) {
    Open();
    window.entryRow.InputField.SetText(u"1"_s);
    for (const QString &name : {u"MonthPopup"_s, u"TaxCombo"_s, u"CategoryCombo"_s}) {
        QComboBox &menu = Menu(name);
        const QString before = menu.currentText();
        const auto turn = [&menu] {
            QWheelEvent event({5, 5}, menu.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&menu, &event);
        };
        list.setFocus();
        turn();
        EXPECT_EQ(menu.currentText(), before);
        menu.setFocus();
        turn();
        EXPECT_NE(menu.currentText(), before);
    }
}

TEST_F(JournalPageTest, KeepsThePlaceInALongListThroughAReload) {
    book.Run(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20000) "
             "INSERT INTO cash_journal (vdate, type, amount, tax, cashbookID) "
             "SELECT date('2026-01-01', '+' || (i % 365) || ' days'), 'E', 1, '3', 1 FROM n"_s);
    Open();
    // The list of the logic is itself what the view shows: there is no second copy.
    ASSERT_EQ(list.model(), &window.journal.CashList);
    ASSERT_EQ(window.journal.CashList.ListCount(), 20000);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_End);
    EXPECT_EQ(window.journal.CashList.ListIndex(), 19999);
    const QRect last = list.visualRect(list.model()->index(19999, 0));
    EXPECT_TRUE(list.viewport()->rect().contains(last));
    QTest::keyClick(&list, Qt::Key_Up);
    EXPECT_EQ(window.journal.CashList.ListIndex(), 19998);

    list.verticalScrollBar()->setValue(12345);
    const int top = list.rowAt(0);
    EXPECT_GT(top, 0);
    window.balances.Refresh();
    QApplication::processEvents();
    EXPECT_EQ(list.rowAt(0), top);
    EXPECT_EQ(list.selectionModel()->selectedRows().size(), 0);
    EXPECT_EQ(window.journal.CashList.ListIndex(), -1);
}

} // namespace
