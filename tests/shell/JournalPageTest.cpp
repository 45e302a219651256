#include "support/MainWindowTest.h"

#include <QComboBox>
#include <QCompleter>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

class JournalPageTest : public MainWindowTest {
protected:
    QComboBox &Menu(const QString &name) { return Find<QComboBox>(name); }
    bool Shows(const QString &name) { return Find<QWidget>(name).isVisible(); }
    void ChooseFromMenu(QPoint place, const QString &text) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                list.viewport()->mapToGlobal(place));
        QApplication::sendEvent(list.viewport(), &event);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        for (QAction *action : menu->actions()) {
            if (action->text() == text) {
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
            }
        }
    }

    EntryRow &row = window.entryRow;
    Listbox &bookings = window.journal.CashList;
    QTableView &list = Find<QTableView>(u"CashList"_s);
};

TEST_F(JournalPageTest, BooksAReceiptAndAnExpenseByKeysAlone) {
    Open();
    Type(u"0203\t119"_s);
    Key(Qt::Key_Period, Qt::KeypadModifier);
    EXPECT_EQ(row.InputField.Text(), u"119,"_s);
    Type(u"5\t7\terl"_s); // The locked amount is passed over.
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    Type(u"\r"_s); // The Return that completes does not save.
    EXPECT_EQ(bookings.ListCount(), 0);
    Type(u"\tR1\tbar\r"_s);
    Type(u"+\t\t"_s); // The focus is back in the date.
    EXPECT_EQ(row.CategoryLabel.Text(), u"Art der Ausgabe"_s);
    Type(u"2.5\t\tfrei\r"_s);
    EXPECT_EQ(bookings.Cell(-1, -1),
              u"02.03.2026\t119,50\t\t7% USt.\tErlöse 7% USt\tR1\tbar\t219,50\n"
              "03.03.2026\t\t2,50\t19% VSt.\tfrei\t\t\t217,00"_s);
    EXPECT_EQ(book.Value(u"SELECT account FROM cash_journal WHERE id = 1"_s), u"8300"_s);
}

TEST_F(JournalPageTest, ShowsWhatIsMissingAndEscapeLeavesAChange) {
    book.Add({u"2026-03-01"_s, u"E"_s, u"10"_s});
    Open();
    Key(Qt::Key_Return);
    EXPECT_TRUE(Shows(u"ErrorLabel"_s));
    DoubleClick(list, 0, 4);
    EXPECT_TRUE(Shows(u"ChangeButton"_s) && !Shows(u"SubmitButton"_s));
    EXPECT_FALSE(Find<QWidget>(u"OutputField"_s).isEnabled());
    row.NoteField.SetText(u"neu"_s);
    Type(u"2\x1b"_s); // Into the date, and Escape.
    EXPECT_TRUE(Shows(u"SubmitButton"_s));
    EXPECT_EQ(row.InputField.Text() + row.NoteField.Text(), u""_s);
    EXPECT_EQ(bookings.ListIndex(), -1);
    EXPECT_EQ(book.Value(u"SELECT vdate || note FROM cash_journal"_s), u"2026-03-01"_s);
}

TEST_F(JournalPageTest, CommandsActOnTheRowUnderThePointerWhileTheListHasTheFocus) {
    Open();
    Click(list.viewport(), {50, 50});
    bool handled = false; // The view tells of no click there; the window must not rest on it.
    Q_EMIT window.journal.CashList.CellClick(0, 0, handled);
    EXPECT_FALSE(window.MenuItemEnable()) << "an empty list enables nothing";
    book.Add({u"2026-03-01"_s, u"E"_s, u"10"_s});
    book.Add({u"2026-03-02"_s, u"E"_s, u"20"_s});
    row.NewSale();
    Click(list, 0, 4);
    EXPECT_TRUE(window.MenuItemEnable() && bookings.ListIndex() == 0);
    row.NoteField.SetFocus();
    EXPECT_FALSE(window.MenuItemEnable());
    ChooseFromMenu(Centre(list, 1, 4), u"Duplizieren"_s);
    EXPECT_EQ(row.InputField.Text(), u"20,00"_s);
    EXPECT_TRUE(row.SubmitButton.Visible());
    Click(list, 0, 4);
    ChooseFromMenu(Centre(list, 1, 4), u"Löschen"_s);
    EXPECT_EQ(bookings.Cell(-1, Journal::Input), u"10,00"_s);
    EXPECT_EQ(bookings.ListIndex(), -1);
    EXPECT_TRUE(window.MenuItemEnable()) << "a menu takes the focus for a while only";
    ChooseFromMenu({50, 300}, u"Löschen"_s);
    EXPECT_EQ(bookings.ListCount(), 1) << "no row is selected";
}

TEST_F(JournalPageTest, TypedTextOfNoRowLeavesNoStaleRowBehind) {
    Open();
    row.InputField.SetText(u"1"_s);
    const ComboBox &category = row.pickLists.CategoryCombo;
    Menu(u"CategoryCombo"_s).setFocus();
    Key(Qt::Key_Down);
    ASSERT_EQ(category.ListIndex(), 0);
    Type(u"x"_s);
    EXPECT_EQ(category.ListIndex(), -1);
    EXPECT_EQ(Menu(u"CategoryCombo"_s).currentText(), category.Text());

    Menu(u"CategoryCombo"_s).lineEdit()->selectAll();
    Type(u"19"_s);
    ASSERT_TRUE(Menu(u"CategoryCombo"_s).completer()->popup()->isVisible()) << "inside words";
    Key(Qt::Key_Escape);
    EXPECT_EQ(category.Text(), u"19"_s);
    Key(Qt::Key_Tab);
    EXPECT_EQ(category.Text(), u"19"_s);
    row.pickLists.TaxCombo.SetFocus();
    Menu(u"TaxCombo"_s).lineEdit()->selectAll();
    Type(u"KEINE\x1b"_s);
    EXPECT_EQ(row.pickLists.TaxCombo.ListIndex(), -1);
    row.NoteField.SetFocus();
    EXPECT_EQ(row.pickLists.TaxCombo.ListIndex(), 2);
}

TEST_F(JournalPageTest, KeepsALongNoteWithLineBreaksThroughAChange) {
    const QString note = u"eins\nzwei\tdrei "_s + QString(40000, u'x');
    book.Add({.date = u"2026-03-01"_s, .type = u"E"_s, .amount = u"10"_s, .note = note});
    Open();
    bookings.SetListIndex(0);
    row.EditSale(EntryRow::EditMode::Change);
    row.ChangeButton.Press();
    EXPECT_EQ(book.Value(u"SELECT note FROM cash_journal"_s), note);
}

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
        Menu(name).setFocus();
        for (const Qt::Key key : keys) {
            Key(key);
        }
        EXPECT_EQ(Menu(name).currentText(), text);
        EXPECT_EQ(bookings.Cell(-1, Journal::Balance), balances);
    }
}

TEST_F(JournalPageTest, LetsTheWheelTurnOnlyTheControlWithTheFocus) {
    Open();
    row.InputField.SetText(u"1"_s);
    for (const QString &name : {u"MonthPopup"_s, u"TaxCombo"_s, u"CategoryCombo"_s}) {
        const QString before = Menu(name).currentText();
        list.setFocus();
        TurnWheel(Menu(name), -120);
        EXPECT_EQ(Menu(name).currentText(), before);
        Menu(name).setFocus();
        TurnWheel(Menu(name), -120);
        EXPECT_NE(Menu(name).currentText(), before);
    }
}

TEST_F(JournalPageTest, ShowsTheNewBookingInALongListAndKeepsThePlaceThroughAReload) {
    Open();
    book.Run(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20000) "
             "INSERT INTO cash_journal (vdate, type, amount, tax, cashbookID) "
             "SELECT date('2026-01-01', '+' || (i % 365) || ' days'), 'E', 1, '3', 1 FROM n"_s);
    ASSERT_EQ(list.model(), &bookings) << "the list of the logic has a second copy";
    const auto isShown = [this](int index) {
        return list.viewport()->rect().contains(Centre(list, index, 4));
    };
    row.InputField.SetText(u"5"_s);
    row.pickLists.CategoryCombo.SetText(u"frei"_s);
    row.SubmitButton.Press();
    EXPECT_TRUE(isShown(bookings.FindRow(u"20001"_s)));

    window.selectors.MonthPopup.SetListIndex(0);
    QApplication::processEvents(); // The view lays out its rows.
    list.setFocus();
    Key(Qt::Key_End);
    EXPECT_TRUE(bookings.ListIndex() == 20000 && isShown(20000));
    Key(Qt::Key_Up);
    EXPECT_EQ(bookings.ListIndex(), 19999);

    list.verticalScrollBar()->setValue(12345);
    const int top = list.rowAt(0);
    EXPECT_GT(top, 0);
    window.balances.Refresh();
    QApplication::processEvents();
    EXPECT_EQ(list.rowAt(0), top);
    EXPECT_FALSE(list.selectionModel()->hasSelection() || bookings.ListIndex() >= 0);
}

} // namespace
