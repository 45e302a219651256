#include "endurance/Endurance.h"
#include "support/MainWindowTest.h"

#include <QScrollBar>

static auto Pick(const auto &values) {
    return values[RandomBelow(int(values.size()))];
}
static QString Word(const QString &words) {
    return Pick(words.split(' '));
}

const auto anyKeys = "\t {Shift+Tab} \r \x1b {Up} {Down} {End} {Del} {Backspace} "
                     "{F4} {F10} {Space} {Alt+Down} {Ctrl+D} {Ctrl+L} {Ctrl+N} "
                     "12,50 1.250,00 7 + -3 O'Neill e";

/// Acts in a main window with its own database file.
struct RandomUser {
    RandomUser() {
        env.desktop.printout.emplace();
        env.Run("INSERT INTO cash_book (opening_balance) VALUES (9)");
        window.Event_Open();
    }

    void Act() {
        view.show(); // A command may have closed it.
        view.activateWindow();
        env.desktop.menuChoice = RandomBelow(2);
        for (QScrollBar *bar : view.findChildren<QScrollBar *>()) {
            bar->setContextMenuPolicy(Qt::PreventContextMenu); // Its menu would wait for a choice.
        }
        QString keys = Word(anyKeys);
        const QWidget &widget = *Pick(view.findChildren<QWidget *>());
        const int action = RandomBelow(9);
        if (action == 0) {
            window.MenuAction("cashbook");
            window.MenuAction("new");
            keys = Word("31122025 01012026 01022026 31122026 01012027") +
                   Word("\t7,125\t\t \t\t0,5\t\t \t1250\t\t \t\t99,99\t\t") +
                   Word("{Down}\r frei\r");
        } else if (action == 1) {
            bookings.SetListIndex(RandomBelow(bookings.ListCount() + 1) - 1);
            window.MenuAction(Word("new edit copy delete print export preferences cashbook about"));
        } else if (action == 2) {
            Pick(view.findChildren<QComboBox *>())->setFocus();
            keys = Word("{Down} {Up} {End}");
        } else if (action < 5 && widget.isVisible()) {
            QTest::mouseClick(view.windowHandle(), Pick(QList{Qt::LeftButton, Qt::RightButton}), {},
                              widget.mapTo(&view, QPoint(RandomBelow(widget.width() + 1),
                                                         RandomBelow(widget.height() + 1))));
        }
        Type(view.windowHandle(), keys);
        QApplication::processEvents();
        if (window.PagePanel1.Value() == MainWindow::JournalPage) {
            EXPECT_EQ(QString::number(bookings.ListCount()),
                      env.Value("SELECT count(*) FROM cash_journal WHERE " + Condition()));
            if (RandomBelow(20) == 0) {
                Check();
            }
        }
        // The last one is shown if a booking was deleted during its change.
        EXPECT_EQ(env.desktop.TakeMessages().remove(QRegularExpression(
                      "(Hauptkasse kann|DB Error: (UNIQUE|Der Datensatz))[^|]*|\\|")),
                  "");
    }
    /// Returns the SQL condition for the shown bookings.
    QString Condition() const {
        const int length = window.selectors.MonthPopup.ListIndex() > 0 ? 7 : 4;
        return u"cashbookID = %1 AND vdate LIKE '%2%'"_s.arg(window.selectors.SelectedCashbookID())
            .arg(window.selectors.PeriodStartSQL().left(length));
    }
    /// Compares the opening balance, and the id and the balance of each booking, with what the
    /// shell reads from the file.
    void Check() const {
        QStringList shown = {"0 " + window.balances.OpeningBalanceLabel.Text()};
        for (int row = 0; row < bookings.ListCount(); ++row) {
            shown.append(bookings.RowTag(row) + ' ' + bookings.Cell(row, Journal::Balance));
        }
        // The list counts amounts in cents, half a cent rounded away from zero.
        const QString lines = ReadWithShell(
            env.app,
            u"SELECT 0, replace(opening_balance, ',', '.') + (SELECT total(amount * ((type = 'E') "
            "* 2 - 1)) FROM cash_journal WHERE cashbookID = cash_book.id AND vdate < '%1') FROM "
            "cash_book WHERE id = %2; SELECT id, round(amount * 1.000000000001, 2) * ((type = 'E') "
            "* 2 - 1) FROM cash_journal WHERE %3 ORDER BY vdate, id"_s.arg(
                window.selectors.PeriodStartSQL(),
                QString::number(window.selectors.SelectedCashbookID()), Condition()));
        Currency balance;
        QStringList stored;
        for (const QString &line : lines.split('\n')) {
            balance += Currency::FromDouble(line.section('|', 1).toDouble());
            stored.append(line.section('|', 0, 0) + ' ' +
                          env.app.Locale().FormatBalance(balance.ToDouble()));
        }
        EXPECT_EQ(shown, stored);
        EXPECT_EQ(window.balances.LastAmountLabel.Text(),
                  bookings.Cell(bookings.LastIndex(), Journal::Balance));
        EXPECT_EQ(env.Value("PRAGMA integrity_check"), "ok");
    }

    TestEnvironment env{TestEnvironment::Storage::File};
    MainWindow window{env.app};
    Listbox &bookings = window.journal.CashList;
    MainWindowView view{window, env.app.Locale(), env.app.Resources()};
};

using Actions = Endurance;

TEST_F(Actions, KeepTheListTheBalancesAndTheFileConsistent) {
    Run(1, [this] {
        RandomUser user;
        for (int i = 0; i < 800 && !HasFailure(); ++i) {
            user.Act();
            ++counts["actions"];
        }
        counts["bookings at the end"] +=
            user.env.Value("SELECT count(*) FROM cash_journal").toInt();
    });
}
