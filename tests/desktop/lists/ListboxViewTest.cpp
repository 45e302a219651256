#include "support/MainWindowTest.h"

#include <QBitmap>
#include <QHeaderView>
#include <QToolTip>

class ListboxViewTest : public MainWindowTest {
protected:
    /// Opens the preferences with three accounts; the first is active.
    QTableView &OpenAccounts() {
        env.Run("DELETE FROM cash_accounts WHERE id > 3");
        env.Run("UPDATE cash_accounts SET active = id = 1");
        Open();
        window.MenuAction("preferences");
        return Find<QTableView>("CashaccountList");
    }
    static QPixmap Cell(const QTableView &list, int row, int column) {
        return list.viewport()->grab(list.visualRect(list.model()->index(row, column)));
    }
    /// Returns the bounding rectangle of the pixels that differ from the background of a cell.
    static QRect Drawn(const QPixmap &cell) {
        return QRegion(cell.createMaskFromColor(cell.toImage().pixel(0, 0))).boundingRect();
    }

    QTableView &list = Find<QTableView>("CashList");
    Listbox &accounts = window.bookingAccounts.CashaccountList;
};

TEST_F(ListboxViewTest, PaintsStripesAFrameAndTheSelectedRow) {
    env.Add({});
    env.Add({});
    Open();
    Click(list, 1, 4);
    Type("{Shift+Up}");
    const QImage image = list.grab().toImage();
    EXPECT_EQ(image.pixel(0, 99), 0xff6e6e6e) << "the frame";
    EXPECT_EQ(image.pixel(115, 18), 0xff1f6aa5) << "the selected row";
    for (int row = 1; row < 5; ++row) {
        EXPECT_EQ(image.pixel(115, 18 * row + 18), row % 2 == 0 ? 0xffffffff : 0xffd2edf5);
    }
    Click(list.viewport(), {9, 99});
    EXPECT_EQ(bookings.ListIndex(), -1) << "a click below the rows selects none";
}

TEST_F(ListboxViewTest, ShowsTextsInOneLineOrAsToolTips) {
    env.Add({.category = "Erlöse <19%> und noch einiges mehr", .note = "a\nb\tc\bd"});
    env.Add({});
    env.Add({.note = "a b c d"});
    Open();
    EXPECT_EQ(Cell(list, 0, Journal::Note).toImage(), Cell(list, 2, Journal::Note).toImage());
    QHelpEvent help(QEvent::ToolTip, Centre(list, 0, Journal::Category), {});
    QApplication::sendEvent(list.viewport(), &help);
    EXPECT_EQ(QToolTip::text(), "<p>Erlöse &lt;19%&gt; und noch einiges mehr</p>");
}

TEST_F(ListboxViewTest, LaysOutItsColumns) {
    env.Add({});
    env.Add({.type = "A"});
    view.resize(1200, 900);
    Open();
    EXPECT_GT(Drawn(Cell(list, 0, Journal::Input)).right(), 62);
    EXPECT_GT(Drawn(Cell(list, 1, Journal::Output)).right(), 64);
    EXPECT_EQ(list.horizontalHeader()->length(), list.viewport()->width());
    view.centralWidget()->setFont(QFont("DejaVu Sans", 22)); // 11 is the largest of the design.
    EXPECT_EQ(list.rowHeight(0), 36);
    EXPECT_EQ(list.columnWidth(0), 230);
}

TEST_F(ListboxViewTest, CentresTheDarkMarkOfAnActiveAccount) {
    const QTableView &table = OpenAccounts();
    const auto active = Cell(table, 0, BookingAccounts::Active);
    EXPECT_NEAR(Drawn(active).center().x(), active.rect().center().x(), 2);
    const auto brightness = [](const QPixmap &cell) {
        return qGray(cell.scaled(1, 1, {}, Qt::SmoothTransformation).toImage().pixel(0, 0));
    };
    EXPECT_LT(brightness(active), brightness(Cell(table, 2, BookingAccounts::Active)));
}

TEST_F(ListboxViewTest, KeepsTheSelectedRowAndOpensItsMenuBelow) {
    QTableView &table = OpenAccounts();
    table.setFocus();
    Type("{Shift+F10}");
    EXPECT_FALSE(QApplication::activePopupWidget()) << "no row is selected";
    Type("{Home}");
    accounts.PressHeading(BookingAccounts::Name);
    Type("{Up}");
    EXPECT_EQ(accounts.ListIndex(), 1) << "above the last row";
    window.bookingAccounts.LoadCashAccounts();
    Type("{Down}");
    EXPECT_EQ(accounts.ListIndex(), 2) << "below the second row";
    Click(table.viewport(), {9, 99});
    EXPECT_EQ(accounts.ListIndex(), 2) << "a selection is required";
    Type("{Shift+F10}");
    const QPoint below = table.visualRect(table.currentIndex()).bottomLeft();
    EXPECT_EQ(QApplication::activePopupWidget()->pos(), table.viewport()->mapToGlobal(below));
}
