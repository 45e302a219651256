#include "desktop/fields/HintView.h"
#include "support/MainWindowTest.h"

class JournalPageTest : public MainWindowTest {
protected:
    bool Shows(const QString &name) { return Find<QWidget>(name).isVisible(); }
    void OpenMenu(QPoint position, const QString &keys) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, list.viewport()->mapToGlobal(position));
        QApplication::sendEvent(list.viewport(), &event);
        Type(keys);
    }

    EntryRow &row = window.entryRow;
    ComboBox &category = row.pickLists.CategoryCombo;
    QTableView &list = Find<QTableView>(u"CashList"_s);
};

TEST_F(JournalPageTest, EditsBookingsOnlyInTheSelectedCashBook) {
    env.Run(u"INSERT INTO cash_book VALUES (2, 'Laden', '1010', 50, '2026-01-01', NULL)"_s);
    env.Add({u"2026-04-01"_s, u"E"_s, u"1"_s});
    env.desktop.fileToSave = FolderItem(env.desktop.Path(u"export.txt"_s));
    const auto stored = [this] {
        return env.Value(u"SELECT group_concat(cashbookID || type || amount || ' ' || vdate || "
                         "' ' || tax || account || note, '; ') FROM cash_journal WHERE id > 1"_s);
    };
    Open();
    Choose(u"CashbookPopup"_s, 1);
    EXPECT_EQ(window.balances.OpeningBalanceLabel.Text(), u"50,00"_s);
    Click(&Find<QWidget>(u"OutputField"_s), {5, 5});
    Type(u"20"_s);
    Choose(u"TaxCombo"_s, 1);
    Choose(u"CategoryCombo"_s, 0);
    Click(&Find<QWidget>(u"SubmitButton"_s), {5, 5});
    EXPECT_EQ(stored(), u"2A20.0 2026-03-15 84730"_s);

    row.DateField.SetDateValue(Date(QDate(2026, 12, 24))); // A date that is not that of the booking.
    OpenMenu(Centre(list, 0, 4), u"{Down}\r"_s);
    Type(u"\t8\r"_s);
    const QString changed = u"2A8.0 2026-03-15 94730"_s; // Its own date, and the preselected tax.
    EXPECT_EQ(stored(), changed);
    Click(list, 0, 4);
    Find<QAction>(u"CopyButton"_s).trigger();
    Type(u"16\r"_s);
    EXPECT_EQ(stored(), changed + u"; 2A8.0 2026-03-16 94730"_s);
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), u"42,00\n34,00"_s);
    window.MenuAction(u"export"_s);
    QFile file(env.desktop.fileToSave->Path());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().count(";1010;EUR;"), 2);
    Click(list, 0, 4);
    Find<QAction>(u"DeleteButton"_s).trigger();
    EXPECT_EQ(stored(), u"2A8.0 2026-03-16 94730"_s);
    Choose(u"CashbookPopup"_s, 0);
    Choose(u"MonthPopup"_s, 4);
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), u"101,00"_s);
}

TEST_F(JournalPageTest, AddsAReceiptAndAnExpenseByKeyboard) {
    Open();
    Type(u"\r"_s);
    EXPECT_TRUE(Shows(u"ErrorLabel"_s) && Find<QWidget>(u"ErrorLabel"_s).palette().windowText() == Qt::white);
    // The keypad's point works as a comma, Tab skips the disabled amount, Return in the suggestions does not save.
    Type(u"0203\t119{Num+.}5\t7\terl{Down}{Down}\r"_s);
    EXPECT_EQ(bookings.ListCount(), 0);
    Type(u"\tR1\tbar\r+\t\t2.5\t\tfrei\r"_s); // Return moves the focus back to the date.
    EXPECT_EQ(bookings.Cell(-1, -1), u"02.03.2026\t119,50\t\t7% USt.\tErlöse 7% USt\tR1\tbar\t219,50\n"
                                     "03.03.2026\t\t2,50\t19% VSt.\tfrei\t\t\t217,00"_s);
    EXPECT_EQ(env.Value(u"SELECT account FROM cash_journal WHERE id = 1"_s), u"8300"_s);
}

TEST_F(JournalPageTest, ChangesABookingByKeyboardAndCancelsWithEscape) {
    const QString note = u"eins\nzwei "_s + QString(40000, u'x'); // Too long for a line edit.
    env.Add({.date = u"2026-03-01"_s, .type = u"E"_s, .amount = u"10"_s, .note = note});
    Open();
    DoubleClick(list, 0, 4);
    EXPECT_TRUE(Shows(u"ChangeButton"_s) && !Shows(u"SubmitButton"_s));
    Type(u"3\x1b"_s); // The first Escape only reverts the date.
    EXPECT_TRUE(Shows(u"ChangeButton"_s));
    Type(u"\x1b"_s);
    EXPECT_TRUE(Shows(u"SubmitButton"_s));
    DoubleClick(list, 0, 4);
    Type(u"2\r"_s);
    EXPECT_EQ(env.Value(u"SELECT vdate || note FROM cash_journal"_s), u"2026-03-02"_s + note);
}

TEST_F(JournalPageTest, OpensTheMenuOfTheRowUnderThePointer) {
    env.Add({u"2026-03-01"_s, u"E"_s, u"10"_s});
    env.Add({u"2026-03-02"_s, u"E"_s, u"20"_s});
    Open();
    OpenMenu(Centre(list, 1, 4), u"{Down}{Down}{Down}\r"_s);
    EXPECT_EQ(bookings.Cell(-1, Journal::Input), u"10,00"_s);
    EXPECT_TRUE(window.MenuItemEnable()) << "the list gets the focus back from the menu";
    OpenMenu({50, 300}, u"{Down}{Down}{Down}\r"_s);
    EXPECT_EQ(bookings.ListCount(), 1) << "no row is selected";
}

TEST_F(JournalPageTest, ShowsHintsOnlyBelowTheFocusedField) {
    env.Add({u"2026-03-01"_s, u"E"_s, u"10"_s});
    Open();
    const auto &input = Find<QLineEdit>(u"InputField"_s);
    Type(u"\t12"_s);
    EXPECT_FALSE(view.findChild<HintView *>());
    Type(u".345"_s);
    auto &hint = *view.findChild<HintView *>();
    EXPECT_EQ(hint.pos(), input.mapTo(&view, QPoint(0, input.height() + 2)));
    EXPECT_GT(hint.width(), hint.fontMetrics().horizontalAdvance(u"wird als 12,35 gelesen"_s));
    EXPECT_EQ(input.accessibleDescription(), u"wird als 12,35 gelesen"_s);
    EXPECT_EQ(hint.grab().toImage().pixel(3, 3), 0xffffffdc) << "the colour of a tool tip";
    Type(u"\r"_s);
    EXPECT_EQ(input.accessibleDescription(), u"Bitte Art der Einnahme/Ausgabe auswählen! wird als 12,35 gelesen"_s);
    row.InputField.SetText(u"12.340"_s);
    EXPECT_EQ(input.accessibleDescription(), u"Bitte Art der Einnahme/Ausgabe auswählen! wird als 12,34 gelesen"_s);
    const auto &bar = Find<QWidget>(u"ErrorRect"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(hint.y(), bar.mapTo(&view, QPoint(0, bar.height())).y()) << "the hint does not cover the message";
    QTest::mouseClick(view.windowHandle(), Qt::LeftButton, {}, hint.geometry().center());
    EXPECT_EQ(bookings.ListIndex(), 0) << "the hint passes the click on to the list";
    EXPECT_FALSE(hint.isVisible());
    Find<QWidget>(u"CategoryCombo"_s).setFocus();
    Type(u"frei"_s);
    EXPECT_TRUE(view.findChildren<HintView *>().last()->isVisible());
}

TEST_F(JournalPageTest, FitsPopupsToTheLongestRow) {
    const QString name = u"Ein Konto mit einem Namen, der in kein Feld dieser Breite passt"_s;
    env.Run(u"UPDATE cash_accounts SET name = '%1' WHERE account = '8400'"_s.arg(name));
    env.Run(u"UPDATE cash_book SET name = '%1'"_s.arg(name));
    Open();
    Type(u"\t1\t\tkonto"_s);
    auto &accounts = Find<QComboBox>(u"CategoryCombo"_s);
    EXPECT_GT(accounts.completer()->popup()->width(), accounts.fontMetrics().horizontalAdvance(name));
    Type(u"\x1b"_s);
    for (auto *box : {&accounts, &Find<QComboBox>(u"CashbookPopup"_s)}) {
        box->showPopup();
        EXPECT_GT(box->view()->width(), box->fontMetrics().horizontalAdvance(name));
        box->hidePopup();
    }
    for (const auto &text : {u"kurz"_s, name}) {
        category.SetText(text);
        QHelpEvent help(QEvent::ToolTip, {5, 5}, QCursor::pos());
        QApplication::sendEvent(&accounts, &help);
        EXPECT_EQ(QToolTip::text(), text == name ? u"<p>%1</p>"_s.arg(name) : QString());
    }
}

TEST_F(JournalPageTest, CompletesTheCategoryUnlessEscapeIsPressed) {
    struct Case {
        QString keys, category;
    };
    const Case cases[] = {{u"19\r"_s, u"Erlöse 19% USt"_s}, // The first that contains it.
                          {u"19\t"_s, u"Erlöse 19% USt"_s},
                          {u"g\r"_s, u"Geldtransit Eingang"_s}, // Others contain it, this one begins with it.
                          {u"ei{Down}{Down}\r"_s, u"Geldtransit Eingang"_s},
                          {u"{Down}{Ctrl+A}ei\x1b"_s, u"ei"_s}};
    Open();
    for (const Case &each : cases) {
        row.NewSale();
        row.InputField.SetText(u"1"_s);
        category.SetFocus();
        Type(each.keys);
        EXPECT_EQ(category.Text(), each.category) << qPrintable(each.keys);
        EXPECT_EQ(bookings.ListCount(), 0) << qPrintable(each.keys);
    }
    Type(u"\r"_s);
    EXPECT_EQ(bookings.Cell(-1, Journal::Category), u"ei"_s) << "the next Return saves the booking";
}

TEST_F(JournalPageTest, HandlesAClickOutsideTheOpenSuggestions) {
    Open();
    row.InputField.SetText(u"1"_s);
    category.SetFocus();
    Type(u"erl"_s);
    ASSERT_TRUE(QApplication::activePopupWidget());
    Click(&Find<QWidget>(u"SaleNumberField"_s), {5, 5});
    EXPECT_TRUE(Find<QWidget>(u"SaleNumberField"_s).hasFocus());
    category.SetText({});
    category.SetFocus();
    Type(u"erl"_s);
    Click(&Find<QWidget>(u"SubmitButton"_s), {5, 5});
    EXPECT_EQ(bookings.ListCount(), 1);
}

TEST_F(JournalPageTest, ConvertsPastedAndDroppedTextToOneLine) {
    QMimeData data;
    data.setText(u"a\r\nb\t\tc\u2028d\u0007 e"_s);
    QApplication::clipboard()->setText(data.text());
    const std::function<void(QLineEdit &)> insertions[] = {
        [](QLineEdit &field) { ::Type(&field, u"{Ctrl+V}"_s); },
        [this](QLineEdit & /*field*/) { Find<QAction>(u"EditPaste"_s).trigger(); },
        [](QLineEdit &field) {
            QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
            QApplication::sendEvent(&field, &event);
            ::Type(QApplication::activePopupWidget(), u"{Down}\r"_s); // The other actions are disabled.
        },
        [&data](QLineEdit &field) {
            QDropEvent drop({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, {});
            field.event(&drop); // QApplication delivers a drop only during a drag.
        }};
    Open();
    for (QLineEdit *field : {&Find<QLineEdit>(u"NoteField"_s), Find<QComboBox>(u"CategoryCombo"_s).lineEdit()}) {
        for (const auto &insert : insertions) {
            row.NewSale();
            field->setFocus();
            insert(*field);
            EXPECT_EQ(row.NoteField.Text() + category.Text(), u"a b c d  e"_s);
        }
    }
    row.NoteField.SetText(u"of a booking\nfrom elsewhere"_s);
    EXPECT_EQ(row.NoteField.Text(), u"of a booking\nfrom elsewhere"_s)
        << "line breaks remain until the user edits the text";
    row.NoteField.SetFocus();
    Type(u"{End}!"_s);
    EXPECT_EQ(row.NoteField.Text(), u"of a booking from elsewhere!"_s);
    Type(u"{Home}{Ctrl+V}x"_s);
    EXPECT_EQ(row.NoteField.Text(), u"a b c d  exof a booking from elsewhere!"_s) << "the cursor is after the text";
}

TEST_F(JournalPageTest, ScrollsToTheNewBookingInALongList) {
    Open();
    env.Run(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 9000) "
            "INSERT INTO cash_journal (vdate, type, amount, tax, cashbookID) "
            "SELECT date('2026-01-01', '+' || (i % 365) || ' days'), 'E', 1, '3', 1 FROM n"_s);
    row.InputField.SetText(u"5"_s);
    category.SetText(u"frei"_s);
    row.SubmitButton.Press();
    EXPECT_TRUE(list.viewport()->rect().contains(Centre(list, bookings.FindRow(u"9001"_s), 4)));
}
