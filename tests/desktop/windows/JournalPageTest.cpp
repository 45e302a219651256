#include "desktop/fields/HintView.h"
#include "support/MainWindowTest.h"

class JournalPageTest : public MainWindowTest {
protected:
    bool Shows(const QString &name) { return Find<QWidget>(name).isVisible(); }
    void OpenMenu(QPoint position, const QString &keys) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, position,
                                list.viewport()->mapToGlobal(position));
        QApplication::sendEvent(list.viewport(), &event);
        Type(keys);
    }

    EntryRow &row = window.entryRow;
    ComboBox &category = row.pickLists.CategoryCombo;
    QTableView &list = Find<QTableView>("CashList");
};

TEST_F(JournalPageTest, EditsBookingsOnlyInTheSelectedCashBook) {
    env.Run("INSERT INTO cash_book VALUES (2, 'Laden', '1010', 50, '2026-01-01', NULL)");
    env.Add({"2026-04-01", "E", "1"});
    env.desktop.fileToSave = FolderItem(env.desktop.Path("export.txt"));
    const auto stored = [this] {
        return env.Value("SELECT group_concat(cashbookID || type || amount || ' ' || vdate || "
                         "' ' || tax || account || note, '; ') FROM cash_journal WHERE id > 1");
    };
    Open();
    Choose("CashbookPopup", 1);
    EXPECT_EQ(window.balances.OpeningBalanceLabel.Text(), "50,00");
    Click(&Find<QWidget>("OutputField"), {5, 5});
    Type("20");
    Choose("TaxCombo", 1);
    Choose("CategoryCombo", 0);
    Click(&Find<QWidget>("SubmitButton"), {5, 5});
    EXPECT_EQ(stored(), "2A20.0 2026-03-15 84730");

    row.DateField.SetDateValue(
        Date(QDate(2026, 12, 24))); // A date that is not that of the booking.
    OpenMenu(Centre(list, 0, 4), "{Down}\r");
    Type("\t8\r");
    const QString changed = "2A8.0 2026-03-15 94730"; // Its own date, and the preselected tax.
    EXPECT_EQ(stored(), changed);
    Click(list, 0, 4);
    Find<QAction>("CopyButton").trigger();
    Type("16\r");
    EXPECT_EQ(stored(), changed + "; 2A8.0 2026-03-16 94730");
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), "42,00\n34,00");
    window.MenuAction("export");
    QFile file(env.desktop.fileToSave->Path());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().count(";1010;EUR;"), 2);
    Click(list, 0, 4);
    Find<QAction>("DeleteButton").trigger();
    EXPECT_EQ(stored(), "2A8.0 2026-03-16 94730");
    Choose("CashbookPopup", 0);
    Choose("MonthPopup", 4);
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), "101,00");
}

TEST_F(JournalPageTest, AddsAReceiptAndAnExpenseByKeyboard) {
    Open();
    Type("\r");
    EXPECT_TRUE(Shows("ErrorLabel") &&
                Find<QWidget>("ErrorLabel").palette().windowText() == Qt::white);
    // The keypad's point works as a comma, Tab skips the disabled amount, Return in the suggestions
    // does not save.
    Type("0203\t119{Num+.}5\t7\terl{Down}{Down}\r");
    EXPECT_EQ(bookings.ListCount(), 0);
    Type("\tR1\tbar\r+\t\t2.5\t\tfrei\r"); // Return moves the focus back to the date.
    EXPECT_EQ(bookings.Cell(-1, -1),
              "02.03.2026\t119,50\t\t7% USt.\tErlöse 7% USt\tR1\tbar\t219,50\n"
              "03.03.2026\t\t2,50\t19% VSt.\tfrei\t\t\t217,00");
    EXPECT_EQ(env.Value("SELECT account FROM cash_journal WHERE id = 1"), "8300");
}

TEST_F(JournalPageTest, ChangesABookingByKeyboardAndCancelsWithEscape) {
    const QString note = "eins\nzwei " + QString(40000, u'x'); // Too long for a line edit.
    env.Add({.date = "2026-03-01", .type = "E", .amount = "10", .note = note});
    Open();
    DoubleClick(list, 0, 4);
    EXPECT_TRUE(Shows("ChangeButton") && !Shows("SubmitButton"));
    Type("3\x1b"); // The first Escape only reverts the date.
    EXPECT_TRUE(Shows("ChangeButton"));
    Type("\x1b");
    EXPECT_TRUE(Shows("SubmitButton"));
    DoubleClick(list, 0, 4);
    Type("2\r");
    EXPECT_EQ(env.Value("SELECT vdate || note FROM cash_journal"), "2026-03-02" + note);
}

TEST_F(JournalPageTest, OpensTheMenuOfTheRowUnderThePointer) {
    env.Add({"2026-03-01", "E", "10"});
    env.Add({"2026-03-02", "E", "20"});
    Open();
    OpenMenu(Centre(list, 1, 4), "{Down}{Down}{Down}\r");
    EXPECT_EQ(bookings.Cell(-1, Journal::Input), "10,00");
    EXPECT_TRUE(window.MenuItemEnable()) << "the list gets the focus back from the menu";
    OpenMenu({50, 300}, "{Down}{Down}{Down}\r");
    EXPECT_EQ(bookings.ListCount(), 1) << "no row is selected";
}

TEST_F(JournalPageTest, ShowsHintsOnlyBelowTheFocusedField) {
    env.Add({"2026-03-01", "E", "10"});
    Open();
    const auto &input = Find<QLineEdit>("InputField");
    Type("\t12");
    EXPECT_FALSE(view.findChild<HintView *>());
    Type(".345");
    auto &hint = *view.findChild<HintView *>();
    EXPECT_EQ(hint.pos(), input.mapTo(&view, QPoint(0, input.height() + 2)));
    EXPECT_GT(hint.width(), hint.fontMetrics().horizontalAdvance("wird als 12,35 gelesen"));
    EXPECT_EQ(input.accessibleDescription(), "wird als 12,35 gelesen");
    EXPECT_EQ(hint.grab().toImage().pixel(3, 3), 0xffffffdc) << "the colour of a tool tip";
    Type("\r");
    EXPECT_EQ(input.accessibleDescription(),
              "Bitte Art der Einnahme/Ausgabe auswählen! wird als 12,35 gelesen");
    row.InputField.SetText("12.340");
    EXPECT_EQ(input.accessibleDescription(),
              "Bitte Art der Einnahme/Ausgabe auswählen! wird als 12,34 gelesen");
    const auto &bar = Find<QWidget>("ErrorRect");
    QCoreApplication::processEvents();
    EXPECT_EQ(hint.y(), bar.mapTo(&view, QPoint(0, bar.height())).y())
        << "the hint does not cover the message";
    QTest::mouseClick(view.windowHandle(), Qt::LeftButton, {}, hint.geometry().center());
    EXPECT_EQ(bookings.ListIndex(), 0) << "the hint passes the click on to the list";
    EXPECT_FALSE(hint.isVisible());
    Find<QWidget>("CategoryCombo").setFocus();
    Type("frei");
    EXPECT_TRUE(view.findChildren<HintView *>().last()->isVisible());
}

TEST_F(JournalPageTest, FitsPopupsToTheLongestRow) {
    const QString name = "Ein Konto mit einem Namen, der in kein Feld dieser Breite passt";
    env.Run(u"UPDATE cash_accounts SET name = '%1' WHERE account = '8400'"_s.arg(name));
    env.Run(u"UPDATE cash_book SET name = '%1'"_s.arg(name));
    Open();
    Type("\t1\t\tkonto");
    auto &accounts = Find<QComboBox>("CategoryCombo");
    EXPECT_GT(accounts.completer()->popup()->width(),
              accounts.fontMetrics().horizontalAdvance(name));
    Type("\x1b");
    for (auto *box : {&accounts, &Find<QComboBox>("CashbookPopup")}) {
        box->showPopup();
        EXPECT_GT(box->view()->width(), box->fontMetrics().horizontalAdvance(name));
        box->hidePopup();
    }
    for (const QString &text : {QString("kurz"), name}) {
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
    const Case cases[] = {
        {"19\r", "Erlöse 19% USt"}, // The first that contains it.
        {"19\t", "Erlöse 19% USt"},
        {"g\r", "Geldtransit Eingang"}, // Others contain it, this one begins with it.
        {"ei{Down}{Down}\r", "Geldtransit Eingang"},
        {"{Down}{Ctrl+A}ei\x1b", "ei"}};
    Open();
    for (const Case &each : cases) {
        row.NewSale();
        row.InputField.SetText("1");
        category.SetFocus();
        Type(each.keys);
        EXPECT_EQ(category.Text(), each.category) << each.keys;
        EXPECT_EQ(bookings.ListCount(), 0) << each.keys;
    }
    Type("\r");
    EXPECT_EQ(bookings.Cell(-1, Journal::Category), "ei") << "the next Return saves the booking";
}

TEST_F(JournalPageTest, HandlesAClickOutsideTheOpenSuggestions) {
    Open();
    row.InputField.SetText("1");
    category.SetFocus();
    Type("erl");
    ASSERT_TRUE(QApplication::activePopupWidget());
    Click(&Find<QWidget>("SaleNumberField"), {5, 5});
    EXPECT_TRUE(Find<QWidget>("SaleNumberField").hasFocus());
    category.SetText({});
    category.SetFocus();
    Type("erl");
    Click(&Find<QWidget>("SubmitButton"), {5, 5});
    EXPECT_EQ(bookings.ListCount(), 1);
}

TEST_F(JournalPageTest, ConvertsPastedAndDroppedTextToOneLine) {
    QMimeData data;
    data.setText("a\r\nb\t\tc\u2028d\u0007 e");
    QApplication::clipboard()->setText(data.text());
    const std::function<void(QLineEdit &)> insertions[] = {
        [](QLineEdit &field) { ::Type(&field, "{Ctrl+V}"); },
        [this](QLineEdit & /*field*/) { Find<QAction>("EditPaste").trigger(); },
        [](QLineEdit &field) {
            QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
            QApplication::sendEvent(&field, &event);
            ::Type(QApplication::activePopupWidget(),
                   "{Down}\r"); // The other actions are disabled.
        },
        [&data](QLineEdit &field) {
            QDropEvent drop({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, {});
            field.event(&drop); // QApplication delivers a drop only during a drag.
        }};
    Open();
    for (QLineEdit *field :
         {&Find<QLineEdit>("NoteField"), Find<QComboBox>("CategoryCombo").lineEdit()}) {
        for (const auto &insert : insertions) {
            row.NewSale();
            field->setFocus();
            insert(*field);
            EXPECT_EQ(row.NoteField.Text() + category.Text(), "a b c d  e");
        }
    }
    row.NoteField.SetText("of a booking\nfrom elsewhere");
    EXPECT_EQ(row.NoteField.Text(), "of a booking\nfrom elsewhere")
        << "line breaks remain until the user edits the text";
    row.NoteField.SetFocus();
    Type("{End}!");
    EXPECT_EQ(row.NoteField.Text(), "of a booking from elsewhere!");
    Type("{Home}{Ctrl+V}x");
    EXPECT_EQ(row.NoteField.Text(), "a b c d  exof a booking from elsewhere!")
        << "the cursor is after the text";
}

TEST_F(JournalPageTest, ScrollsToTheNewBookingInALongList) {
    Open();
    env.Run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 9000) "
            "INSERT INTO cash_journal (vdate, type, amount, tax, cashbookID) "
            "SELECT date('2026-01-01', '+' || (i % 365) || ' days'), 'E', 1, '3', 1 FROM n");
    row.InputField.SetText("5");
    category.SetText("frei");
    row.SubmitButton.Press();
    EXPECT_TRUE(list.viewport()->rect().contains(Centre(list, bookings.FindRow("9001"), 4)));
}
