#include "endurance/Endurance.h"
#include "support/MainWindowTest.h"

/// Performs random actions in a main window with its own database file.
struct RandomUser {
    RandomUser() {
        env.desktop.printout.emplace();
        env.desktop.fileToSave = FolderItem(env.desktop.Path("export.txt"));
        QApplication::setDoubleClickInterval(400);
        window.Event_Open();
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }

    template <class Value>
    static Value Pick(const QList<Value> &values) {
        return values[RandomBelow(int(values.size()))];
    }
    static QString Word(const QString &words) { return Pick(words.split(' ')); }
    void Act() {
        view.show(); // A command may have closed it.
        view.activateWindow();
        env.desktop.menuChoice = RandomBelow(2);
        QString keys =
            Word("\t {Shift+Tab} \r \x1b {Up} {Down} {PgUp} {PgDown} {Home} {End} {Ins} "
                 "{Del} {Backspace} {F2} {F4} {F10} {Space} {Alt+Down} {Ctrl+X} {Ctrl+V} "
                 "{Ctrl+Z} {Ctrl+A} {Ctrl+D} {Ctrl+L} {Ctrl+N} 12,50 1.250,00 7 + -3 "
                 "31.12. O'Neill e");
        const int action = RandomBelow(9);
        if (action == 0) {
            window.MenuAction("cashbook");
            window.MenuAction("new");
            keys = Word("31122025 01012026 01022026 28022026 31122026 01012027") + Word("\t \t\t") +
                   QString::number(RandomBelow(9999)) + Word(",5\t\t ,25\t\t ,125\t\t") +
                   Word("{Down}\r {Down}{Down}\r frei\r");
        } else if (action == 1) {
            bookings.SetListIndex(RandomBelow(bookings.ListCount() + 1) - 1);
            window.MenuAction(Word("new edit copy delete print export preferences cashbook about"));
        } else if (action == 2) {
            Pick(view.findChildren<QComboBox *>())->setFocus();
        } else if (const QWidget &widget = *Pick(view.findChildren<QWidget *>());
                   action < 5 && widget.isVisible()) {
            const QPoint position(RandomBelow(widget.width() + 1),
                                  RandomBelow(widget.height() + 1));
            QTest::mouseEvent(Pick(QList{QTest::MouseClick, QTest::MouseDClick}),
                              view.windowHandle(), Pick(QList{Qt::LeftButton, Qt::RightButton}), {},
                              widget.mapTo(&view, position));
        }
        Type(view.windowHandle(), keys);
        QApplication::processEvents();
        if (action == 0)
            std::cerr << qUtf8Printable(keys) << " -> "
                      << qUtf8Printable(window.entryRow.ErrorLabel.Text()) << " "
                      << qUtf8Printable(env.Value("SELECT count(*) FROM cash_journal")) << " focus "
                      << (QApplication::focusWidget()
                              ? qUtf8Printable(QApplication::focusWidget()->objectName())
                              : "none")
                      << " active " << view.isActiveWindow() << " popup "
                      << (QApplication::activePopupWidget() != nullptr) << " date "
                      << qUtf8Printable(window.entryRow.DateField.DateValue().SQLDate()) << " "
                      << qUtf8Printable(window.entryRow.InputField.Text()) << "/"
                      << qUtf8Printable(window.entryRow.OutputField.Text()) << std::endl;
        if (window.PagePanel1.Value() == MainWindow::JournalPage) {
            EXPECT_EQ(QString::number(bookings.ListCount()),
                      env.Value("SELECT count(*) FROM cash_journal WHERE " + Condition()));
        }
    }

    /// Returns the SQL condition for the bookings in the selected period.
    QString Condition() const {
        const int length = selectors.MonthPopup.ListIndex() > 0 ? 7 : 4;
        return u"cashbookID = %1 AND vdate LIKE '%2%'"_s.arg(selectors.SelectedCashbookID())
            .arg(selectors.PeriodStartSQL().left(length));
    }
    /// Compares the shown journal with what the shell reads from the file: the opening balance, and
    /// the id and the balance of each booking.
    void Check() {
        if (window.PagePanel1.Value() != MainWindow::JournalPage) {
            window.MenuAction("cashbook");
        }
        QStringList shown = {"0 " + window.balances.OpeningBalanceLabel.Text()};
        for (int row = 0; row < bookings.ListCount(); ++row) {
            shown.append(bookings.RowTag(row) + ' ' + bookings.Cell(row, Journal::Balance));
        }
        // The list shows and counts amounts in cents, half a cent rounded away from zero.
        const QString sql =
            u"SELECT 0, replace(opening_balance, ',', '.') + (SELECT total(amount * %1) FROM "
            "cash_journal WHERE cashbookID = cash_book.id AND vdate < '%2') FROM cash_book WHERE "
            "id = %3; SELECT id, round(amount * 1.000000000001, 2) * %1 FROM cash_journal WHERE %4 "
            "ORDER BY vdate, id"_s
                .arg("CASE type WHEN 'A' THEN -1 ELSE 1 END", selectors.PeriodStartSQL())
                .arg(selectors.SelectedCashbookID())
                .arg(Condition());
        Currency balance;
        QStringList stored;
        for (const QString &line : ReadWithShell(env.app, sql).split('\n')) {
            balance += Currency::FromDouble(line.section('|', 1).toDouble());
            stored.append(line.section('|', 0, 0) + ' ' +
                          env.app.Locale().FormatBalance(balance.ToDouble()));
        }
        EXPECT_EQ(shown, stored);
        EXPECT_EQ(window.balances.LastAmountLabel.Text(),
                  bookings.Cell(bookings.LastIndex(), Journal::Balance));
        EXPECT_EQ(env.Value("PRAGMA integrity_check"), "ok");
        // The last one is shown if a booking was deleted while it was being changed.
        static const QRegularExpression known(
            "\\||Hauptkasse kann nicht gelöscht werden!|DB Error: (UNIQUE constraint failed: "
            "cash_book.account|Der Datensatz ist nicht mehr vorhanden.)");
        EXPECT_EQ(env.desktop.TakeMessages().remove(known), "");
    }

    TestEnvironment env{TestEnvironment::Storage::File};
    MainWindow window{env.app};
    Listbox &bookings = window.journal.CashList;
    const Selectors &selectors = window.selectors;
    MainWindowView view{window, env.app.Locale(), env.app.Resources()};
};

using Actions = Endurance;

TEST_F(Actions, KeepTheListTheBalancesAndTheFileConsistent) {
    Run(1, [this] {
        RandomUser user;
        for (int i = 1; i <= 800 && !HasFailure(); ++i) {
            SCOPED_TRACE(i);
            user.Act();
            ++counts["actions"];
            if (i % 100 == 0) {
                user.Check();
            }
        }
        counts["bookings at the end"] +=
            user.env.Value("SELECT count(*) FROM cash_journal").toInt();
    });
}
