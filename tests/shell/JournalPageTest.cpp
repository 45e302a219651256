#include "shell/MainWindow.h"
#include "shell/qt/MainWindowView.h"
#include "support/Book.h"

#include <QComboBox>
#include <QTableView>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(JournalPage, ShowsTheBookingsOfTheMonthThatTheKeysChoose) {
    Book book;
    book.Add({u"2026-01-10"_s, u"E"_s, u"10"_s});
    book.Add({u"2026-02-10"_s, u"A"_s, u"2.5"_s});
    MainWindow window(book.app);
    MainWindowView view(window);
    window.Event_Open();
    view.show();
    auto *list = view.findChild<QTableView *>(u"CashList"_s);
    ASSERT_EQ(list->model()->rowCount(), 2);

    auto *months = view.findChild<QComboBox *>(u"MonthPopup"_s);
    months->setFocus();
    QTest::keyClick(months, Qt::Key_Down);
    QTest::keyClick(months, Qt::Key_Down);

    EXPECT_EQ(months->currentText(), u"Februar"_s);
    ASSERT_EQ(list->model()->rowCount(), 1);
    EXPECT_EQ(list->model()->index(0, 7).data().toString(), u"107,50"_s);
}

} // namespace
