#include "support/MainWindowTest.h"

class ListboxViewTest : public MainWindowTest {
protected:
    static QImage CellImage(QTableView &list, int row, int column) {
        return list.viewport()->grab(list.visualRect(list.model()->index(row, column))).toImage();
    }
    /// Returns the accessible description and the width of each column.
    static QStringList Columns(QTableView &list) {
        auto &table = *QAccessible::queryAccessibleInterface(&list)->tableInterface();
        QStringList columns;
        for (int column = 0; column < table.columnCount(); ++column) {
            columns.append(
                u"%1 %2"_s.arg(table.columnDescription(column)).arg(list.columnWidth(column)));
        }
        return columns;
    }
    /// Returns the bounding rectangle of the pixels that differ from the background of a cell.
    static QRect DrawnArea(const QImage &cell) {
        return QRegion(QPixmap::fromImage(cell).createMaskFromColor(cell.pixelColor(0, 0)))
            .boundingRect();
    }
};

TEST_F(ListboxViewTest, ShowsTheJournalInColumnsAndAlternatingColours) {
    env.Add({.date = "2026-01-02",
             .type = "E",
             .amount = "7",
             .category = "Erlöse <19%> und noch einiges mehr"});
    env.Add({"2026-01-03", "A", "4"});
    Open();
    view.resize(view.size() + QSize(1080, 770) - view.centralWidget()->size());
    QApplication::processEvents();
    auto &list = Find<QTableView>("CashList");
    EXPECT_EQ(Columns(list),
              QStringList({"Belegdatum 115", "Einnahmen 70", "Ausgaben 72", "Steuer 90",
                           "Buchungstext 185", "Bel.Nr. 70", "Notiz 160", "Bestand 276"}));
    EXPECT_FALSE(list.horizontalHeader()->isVisible());
    const QImage rows = list.viewport()->grab().toImage();
    for (int row = 0; row < 5; ++row) {
        EXPECT_EQ(rows.pixel(2, 18 * row + 2), row % 2 == 0 ? 0xffffffff : 0xffd2edf5);
    }
    for (const int column : {0, 3, 4}) {
        EXPECT_LT(DrawnArea(CellImage(list, 0, column)).left(), 8) << column;
    }
    for (const int column : {2, 7}) {
        EXPECT_GT(DrawnArea(CellImage(list, 1, column)).right(), list.columnWidth(column) - 8)
            << column;
    }
    EXPECT_GT(DrawnArea(CellImage(list, 0, Journal::Input)).right(), 62);
    EXPECT_EQ(list.grab().toImage().pixel(0, 99), 0xff6e6e6e) << "the colour of the frame";
    for (const int column : {7, 4}) { // Only the account is too long for its cell.
        QHelpEvent help(QEvent::ToolTip, Centre(list, 0, column), QCursor::pos());
        QApplication::sendEvent(list.viewport(), &help);
        EXPECT_EQ(QToolTip::text(),
                  column == 4 ? "<p>Erlöse &lt;19%&gt; und noch einiges mehr</p>" : QString());
    }
    Click(list, 1, 4);
    EXPECT_EQ(CellImage(list, 1, 6).pixel(5, 5), 0xff1f6aa5) << "the selected row";
}

TEST_F(ListboxViewTest, CentresTheCheckMarkOfActiveAccounts) {
    env.Run("UPDATE cash_accounts SET active = 0 WHERE id > 1");
    Open();
    window.MenuAction("preferences");
    QApplication::processEvents();
    auto &list = Find<QTableView>("CashaccountList");
    EXPECT_EQ(Columns(list).mid(1), QStringList({"Kontonummer 100", "Art 50", "Aktiv 50"}));
    EXPECT_EQ(Columns(Find<QTableView>("CashbookList")).mid(0, 2),
              QStringList({"Kassen 110", "Konto 42"}));
    const int row = window.bookingAccounts.CashaccountList.FindRow("1");
    list.scrollTo(list.model()->index(row, 0));
    const QImage box = CellImage(list, row, BookingAccounts::Active);
    EXPECT_NEAR(2 * DrawnArea(box).center().x(), box.width(), 4);
    const QImage other = CellImage(list, row > 1 ? row - 2 : row + 2,
                                   BookingAccounts::Active); // With the same background colour.
    const auto brightness = [](const QImage &cell) {
        return qGray(
            cell.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixel(0, 0));
    };
    EXPECT_LT(brightness(box), brightness(other)) << "the mark is dark";
}
