#include "shell/MainWindow.h"
#include "shell/qt/MainWindowView.h"
#include "support/Book.h"

#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTableView>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The real main window on a book, driven by keys and clicks as by its user.
class EntryRowViewTest : public testing::Test {
protected:
    EntryRowViewTest() {
        window.Event_Open();
        view.show();
        QApplication::setActiveWindow(&view);
    }

    /// To wherever the focus is, or to the pop-up that is open.
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(view.windowHandle(), key, modifiers);
    }
    void Type(const QString &text) {
        for (const QChar letter : text) {
            QTest::keyClick(view.windowHandle(), letter.toLatin1());
        }
    }
    template <class Widget>
    Widget *Find(const QString &name) {
        return view.findChild<Widget *>(name);
    }
    bool HasFocus(const QString &name) {
        const auto *widget = Find<QWidget>(name);
        const QWidget *focus = QApplication::focusWidget();
        return widget == focus || widget->isAncestorOf(focus);
    }
    void ClickRow(int index) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, RowCentre(index));
    }
    QPoint RowCentre(int index) const {
        return list->visualRect(list->model()->index(index, 4)).center();
    }
    void OpenMenuAt(QPoint place) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                list->viewport()->mapToGlobal(place));
        QApplication::sendEvent(list->viewport(), &event);
    }
    void ChooseFromMenu(const QString &text) {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        for (QAction *action : menu->actions()) {
            if (action->text() == text) {
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
            }
        }
    }

    Book book;
    MainWindow window{book.app};
    EntryRow &row = window.entryRow;
    MainWindowView view{window, book.app};
    QTableView *list = Find<QTableView>(u"CashList"_s);
};

TEST_F(EntryRowViewTest, BooksAReceiptAndAnExpenseByKeysAlone) {
    ASSERT_TRUE(HasFocus(u"DateField"_s));
    Type(u"0203"_s);
    Key(Qt::Key_Tab);
    Type(u"119"_s);
    Key(Qt::Key_Period, Qt::KeypadModifier);
    Type(u"5"_s);
    Key(Qt::Key_Tab);
    ASSERT_TRUE(HasFocus(u"TaxCombo"_s)) << "the locked amount is passed over";
    Type(u"7"_s);
    Key(Qt::Key_Tab);
    Type(u"erl"_s);
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    Key(Qt::Key_Return);
    EXPECT_EQ(list->model()->rowCount(), 0) << "the Return that completes does not save";
    Key(Qt::Key_Tab);
    Type(u"R1"_s);
    Key(Qt::Key_Tab);
    Type(u"bar"_s);
    Key(Qt::Key_Return);
    EXPECT_TRUE(HasFocus(u"DateField"_s));

    Key(Qt::Key_Plus);
    Key(Qt::Key_Tab);
    Key(Qt::Key_Tab);
    EXPECT_EQ(row.CategoryLabel.Text(), u"Art der Ausgabe"_s);
    Type(u"2.5"_s);
    Key(Qt::Key_Tab);
    Key(Qt::Key_Tab);
    Type(u"frei"_s);
    Key(Qt::Key_Return);

    EXPECT_EQ(window.journal.CashList.Cell(-1, -1),
              u"02.03.2026\t119,50\t\t7% USt.\tErlöse 7% USt\tR1\tbar\t219,50\n"
              "03.03.2026\t\t2,50\t19% VSt.\tfrei\t\t\t217,00"_s);
    EXPECT_EQ(book.Value(u"SELECT account FROM cash_journal WHERE id = 1"_s), u"8300"_s);
}

TEST_F(EntryRowViewTest, ShowsWhatIsMissingAndEscapeLeavesAChange) {
    Key(Qt::Key_Return);
    EXPECT_TRUE(Find<QWidget>(u"ErrorLabel"_s)->isVisible());

    book.Add({u"2026-03-01"_s, u"E"_s, u"10"_s});
    row.NewSale();
    ClickRow(0);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, RowCentre(0));
    EXPECT_TRUE(Find<QWidget>(u"ChangeButton"_s)->isVisible());
    EXPECT_FALSE(Find<QWidget>(u"SubmitButton"_s)->isVisible());
    EXPECT_FALSE(Find<QWidget>(u"OutputField"_s)->isEnabled());
    EXPECT_TRUE(HasFocus(u"DateField"_s));
    Key(Qt::Key_Escape);
    EXPECT_TRUE(Find<QWidget>(u"SubmitButton"_s)->isVisible());
    EXPECT_TRUE(Find<QLineEdit>(u"InputField"_s)->text().isEmpty());
}

TEST_F(EntryRowViewTest, RowCommandsComeWithAClickAndGoWithTheFocus) {
    ClickRow(0);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(50, 50));
    EXPECT_FALSE(window.MenuItemEnable()) << "an empty list enables nothing";

    book.Add({u"2026-03-01"_s, u"E"_s, u"10"_s});
    book.Add({u"2026-03-02"_s, u"E"_s, u"10"_s});
    row.NewSale();
    ClickRow(1);
    EXPECT_TRUE(window.MenuItemEnable());
    EXPECT_EQ(window.journal.CashList.ListIndex(), 1);
    row.DeleteSale();
    EXPECT_TRUE(window.MenuItemEnable()) << "the list keeps the focus";
    EXPECT_EQ(window.journal.CashList.ListIndex(), -1);
    Find<QWidget>(u"NoteField"_s)->setFocus();
    EXPECT_FALSE(window.MenuItemEnable());
}

TEST_F(EntryRowViewTest, TheContextMenuActsOnTheRowUnderThePointer) {
    book.Add({u"2026-03-01"_s, u"E"_s, u"10"_s});
    book.Add({u"2026-03-02"_s, u"E"_s, u"20"_s});
    row.NewSale();
    ClickRow(0);
    OpenMenuAt(RowCentre(1));
    EXPECT_TRUE(window.MenuItemEnable()) << "a menu takes the focus for a while only";
    ChooseFromMenu(u"Duplizieren"_s);
    EXPECT_EQ(row.InputField.Text(), u"20,00"_s);
    EXPECT_TRUE(row.SubmitButton.Visible());

    OpenMenuAt(RowCentre(0));
    ChooseFromMenu(u"Löschen"_s);
    EXPECT_EQ(window.journal.CashList.ListCount(), 1);
    OpenMenuAt({50, 300});
    ChooseFromMenu(u"Löschen"_s);
    EXPECT_EQ(window.journal.CashList.ListCount(), 1) << "no row is selected";
}

TEST_F(EntryRowViewTest, TypedTextOfNoRowLeavesNoStaleRowBehind) {
    row.InputField.SetText(u"1"_s);
    auto *category = Find<QComboBox>(u"CategoryCombo"_s);
    category->setFocus();
    Key(Qt::Key_Down);
    ASSERT_EQ(row.pickLists.CategoryCombo.ListIndex(), 0);
    Type(u"x"_s);
    EXPECT_EQ(row.pickLists.CategoryCombo.ListIndex(), -1);
    EXPECT_EQ(category->currentText(), row.pickLists.CategoryCombo.Text());

    category->lineEdit()->selectAll();
    Type(u"19"_s);
    ASSERT_TRUE(category->completer()->popup()->isVisible()) << "matches inside words";
    Key(Qt::Key_Escape);
    EXPECT_EQ(row.pickLists.CategoryCombo.Text(), u"19"_s);
    Key(Qt::Key_Tab);
    EXPECT_EQ(row.pickLists.CategoryCombo.Text(), u"19"_s);
    Find<QWidget>(u"TaxCombo"_s)->setFocus();
    Find<QComboBox>(u"TaxCombo"_s)->lineEdit()->selectAll();
    Type(u"KEINE"_s);
    Key(Qt::Key_Escape);
    EXPECT_EQ(row.pickLists.TaxCombo.ListIndex(), -1);
    Find<QWidget>(u"NoteField"_s)->setFocus();
    EXPECT_EQ(row.pickLists.TaxCombo.ListIndex(), 2);
}

TEST_F(EntryRowViewTest, ShowsTheNewBookingInALongList) {
    for (int day = 1; day <= 200; ++day) {
        book.Add({u"2026-03-%1"_s.arg(1 + day % 28, 2, 10, QChar(u'0')), u"E"_s, u"1"_s});
    }
    row.NewSale();
    row.InputField.SetText(u"5"_s);
    row.pickLists.CategoryCombo.SetText(u"frei"_s);
    row.SubmitButton.Press();
    const int added = window.journal.CashList.FindRow(u"201"_s);
    EXPECT_TRUE(list->viewport()->rect().contains(RowCentre(added))) << added;
}

TEST_F(EntryRowViewTest, KeepsALongNoteWithLineBreaksThroughAChange) {
    const QString note = u"eins\nzwei\tdrei "_s + QString(40000, u'x');
    book.Add({u"2026-03-01"_s, u"E"_s, u"10"_s, u"3"_s, u"frei"_s, u"1"_s, {}, {}, note});
    row.NewSale();
    window.journal.CashList.SetListIndex(0);
    row.EditSale(EntryRow::EditMode::Change);
    row.ChangeButton.Press();
    EXPECT_EQ(book.Value(u"SELECT note FROM cash_journal"_s), note);
}

} // namespace
