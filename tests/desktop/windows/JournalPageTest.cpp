#include "desktop/fields/HintView.h"
#include "support/MainWindowTest.h"

#include <QAccessible>
#include <QClipboard>
#include <QCompleter>
#include <QLabel>
#include <QMimeData>
#include <QToolTip>

class JournalPageTest : public MainWindowTest {
protected:
    QComboBox &category = Find<QComboBox>("CategoryCombo");
    QLineEdit &input = Find<QLineEdit>("InputField");
    QLineEdit &note = Find<QLineEdit>("NoteField");
    QTableView &list = Find<QTableView>("CashList");
};

TEST_F(JournalPageTest, BooksByMouseAndScrollsToTheBooking) {
    env.Run("INSERT INTO cash_book VALUES (2, 'Laden', '1010', 50, '2026-01-01', NULL)");
    Open();
    Choose("CashbookPopup", 1);
    for (int i = 0; i < 99; ++i) {
        env.Add({.date = "2026-03-01", .cashbook = "2"});
    }
    window.entryRow.OutputField.SetText("20");
    Choose("CategoryCombo", 0);
    Click(&Find<QWidget>("SubmitButton"), {5, 5});
    EXPECT_EQ(bookings.Cell(99, Journal::Category), "Ausgangsfrachten");
    EXPECT_TRUE(list.viewport()->rect().contains(Centre(list, 99, 4)));
    EXPECT_EQ(Find<QLabel>("LastAmountLabel").text(), "129,00");
    EXPECT_EQ(Find<QComboBox>("MonthPopup").currentText(), "März");
}

TEST_F(JournalPageTest, BooksAReceiptAndAnExpenseByKeyboard) {
    Open();
    // Tab skips the disabled amount, Return moves the focus back to the date.
    Type("0203\t119,5\t7\terl{Down}{Down}\tR1\tbar\r+\t\t2.5\t\tfrei\r");
    EXPECT_EQ(bookings.Cell(-1, -1),
              "02.03.2026\t119,50\t\t7% USt.\tErlöse 7% USt\tR1\tbar\t219,50\n"
              "03.03.2026\t\t2,50\t19% VSt.\tfrei\t\t\t217,00");
}

TEST_F(JournalPageTest, TypesACommaByTheDecimalKeyOfTheKeypad) {
    QTest::sendKeyEvent(QTest::Click, &input, Qt::Key_Comma, ".", Qt::KeypadModifier);
    ::Type(&input, "{Num+.}{Num+1}.");
    EXPECT_EQ(input.text(), ",,1.");
}

TEST_F(JournalPageTest, ChangesTheBookingUnderThePointer) {
    const QString text = "eins\nzwei " + QString(40000, u'x'); // Too long for a line edit.
    env.Add({});
    env.Add({.note = text});
    Open();
    QContextMenuEvent event(QContextMenuEvent::Mouse, Centre(list, 1, 4), {});
    QApplication::sendEvent(list.viewport(), &event);
    Type("{Down}\r3\x1b"); // The first Escape only reverts the date.
    EXPECT_TRUE(Find<QWidget>("ChangeButton").isVisible());
    EXPECT_EQ(note.cursorPosition(), 0) << "shows the beginning";
    Type("\x1b");
    EXPECT_TRUE(Find<QWidget>("SubmitButton").isVisible());
    DoubleClick(list, 1, 4);
    Type("3\r");
    EXPECT_EQ(env.Value("SELECT vdate || note FROM cash_journal WHERE id = 2"),
              "2026-01-03" + text);
}

TEST_F(JournalPageTest, ShowsHintsOnlyBelowTheFocusedField) {
    env.Add({});
    Open();
    Type("\t12.345");
    const auto &hint = *view.findChild<HintView *>();
    EXPECT_EQ(hint.pos(), input.mapTo(&view, QPoint(0, input.height() + 2)));
    Type("\r");
    QApplication::processEvents();
    const auto &message = Find<QWidget>("ErrorRect");
    EXPECT_EQ(hint.y(), message.mapTo(&view, QPoint(0, message.height())).y());
    Click(&hint, hint.rect().center());
    EXPECT_EQ(bookings.ListIndex(), 0) << "the hint passes the click on to the list";
    EXPECT_FALSE(hint.isVisible());
}

TEST_F(JournalPageTest, AnnouncesHintsAndRefusedBookings) {
    Open();
    Type("\t\r");
    auto &announcement = Find<QWidget>("Announcement");
    const auto &spoken = *QAccessible::queryAccessibleInterface(&announcement);
    EXPECT_EQ(spoken.role(), QAccessible::Notification);
    EXPECT_EQ(spoken.text(QAccessible::Name),
              "Bitte einen Betrag bei Einnahme oder Ausgabe eintragen!");
    Type("1.234");
    EXPECT_EQ(spoken.text(QAccessible::Name), "wird als 1,23 gelesen");
    EXPECT_EQ(input.accessibleDescription(), "wird als 1,23 gelesen");
    Type("\r");
    EXPECT_EQ(spoken.text(QAccessible::Name), "Bitte Art der Einnahme/Ausgabe auswählen!");
}

TEST_F(JournalPageTest, FitsLongNamesToPopupsAndFields) {
    const QString name(40, u'm');
    env.Run(u"UPDATE cash_accounts SET name = '%1' WHERE account = '8400'"_s.arg(name));
    env.Run(u"UPDATE cash_book SET name = '%1'"_s.arg(name));
    Open();
    const int width = list.fontMetrics().horizontalAdvance(name);
    Type("\t1\t\tmm");
    EXPECT_GT(category.completer()->popup()->width(), width);
    Type("\r");
    EXPECT_NE(category.lineEdit()->font(), list.font()) << "condensed";
    QHelpEvent help(QEvent::ToolTip, {5, 5}, {});
    QApplication::sendEvent(&category, &help);
    EXPECT_EQ(QToolTip::text(), u"<p>%1</p>"_s.arg(name));
    category.resize(900, 21);
    EXPECT_EQ(category.lineEdit()->font(), list.font());
    for (auto *box : {&category, &Find<QComboBox>("CashbookPopup")}) {
        box->showPopup();
        EXPECT_GT(box->view()->width(), width);
        EXPECT_EQ(box->font(), list.font());
        box->hidePopup();
    }
}

TEST_F(JournalPageTest, CompletesTheCategoryUnlessEscapeIsPressed) {
    Open();
    const auto typed = [this](const QString &keys) {
        window.MenuAction("new");
        Type("\t1\t\t" + keys);
        return category.currentText();
    };
    EXPECT_EQ(typed("19\r"), "Erlöse 19% USt") << "contains it";
    EXPECT_EQ(typed("g\r"), "Geldtransit Eingang") << "begins with it";
    EXPECT_EQ(typed("ei{Down}{Down}\r"), "Geldtransit Eingang");
    EXPECT_EQ(typed("{Down}{Ctrl+A}ei\x1b"), "ei");
    Type("\r");
    EXPECT_EQ(bookings.Cell(-1, Journal::Category), "ei");
}

TEST_F(JournalPageTest, PassesAClickOutsideTheSuggestionsOn) {
    env.Add({});
    Open();
    Type("\t1\t\terl");
    Click(list, 0, 0);
    EXPECT_TRUE(list.hasFocus());
    EXPECT_EQ(bookings.ListIndex(), 0);
}

TEST_F(JournalPageTest, ConvertsPastedAndDroppedTextToOneLine) {
    QMimeData data;
    data.setText("a\r\nb\t\tc\u2028d\u0007 e");
    QApplication::clipboard()->setText(data.text());
    ::Type(category.lineEdit(), "{Ctrl+V}");
    EXPECT_EQ(category.currentText(), "a b c d  e");
    QDropEvent drop({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, {});
    note.event(&drop); // QApplication delivers a drop only during a drag.
    EXPECT_EQ(window.entryRow.NoteField.Text(), "a b c d  e");
    window.entryRow.NoteField.SetText("f\ng");
    ::Type(&note, "{Home}{Ctrl+V}x");
    EXPECT_EQ(window.entryRow.NoteField.Text(), "a b c d  exf g")
        << "the cursor is after the pasted text";
}
