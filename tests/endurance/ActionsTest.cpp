#include "core/TLXModule.h"
#include "endurance/Endurance.h"
#include "support/MainWindowTest.h"

/// Performs random actions in a main window with its own database file.
class RandomUser {
public:
    /// Returns a random number from 0 to below its argument.
    using Random = std::function<int(int)>;
    explicit RandomUser(Random random) : randomBelow(std::move(random)) {
        env.desktop.printout.emplace();
        env.desktop.fileToSave = FolderItem(env.desktop.Path("export.txt"));
        window.Event_Open();
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }

    void Act() {
        env.desktop.menuChoice = randomBelow(2);
        const int action = randomBelow(20);
        if (action < 2) {
            Submit();
        } else if (action < 3) {
            ChangeRow();
        } else if (action < 4) {
            Choose(Pick<QComboBox *>(view.findChildren<QComboBox *>()));
        } else if (action < 6) {
            Click(*Pick<QTableView *>(view.findChildren<QTableView *>())->viewport());
        } else if (action < 8) {
            Click(*Pick<QWidget *>(view.findChildren<QWidget *>()));
        } else if (action < 10) {
            window.MenuAction(Pick<QString>(commands));
        } else if (action < 14) {
            TypeText(Pick<QString>(texts));
        } else {
            Press(Pick<Qt::Key>(keys), Pick<Qt::KeyboardModifiers>(modifiers));
        }
        QApplication::processEvents();
        if (window.PagePanel1.Value() == MainWindow::JournalPage) {
            EXPECT_EQ(QString::number(bookings.ListCount()), Count(Condition()));
        }
    }

    /// Compares the shown journal with what the shell reads from the file.
    void Check() {
        RestoreWindow();
        if (window.PagePanel1.Value() != MainWindow::JournalPage) {
            window.MenuAction("cashbook");
        }
        QStringList shown = {window.balances.OpeningBalanceLabel.Text()};
        for (int row = 0; row < bookings.ListCount(); ++row) {
            shown.append(bookings.RowTag(row) + u' ' + bookings.Cell(row, Journal::Balance));
        }
        EXPECT_EQ(shown, Stored());
        EXPECT_EQ(window.balances.LastAmountLabel.Text(),
                  bookings.Cell(bookings.LastIndex(), Journal::Balance));
        EXPECT_EQ(env.Value("PRAGMA integrity_check"), "ok");
        // The last one is shown if a booking was deleted while it was being changed.
        static const QRegularExpression known(
            "^(Hauptkasse kann nicht gelöscht werden!|"
            "DB Error: UNIQUE constraint failed: cash_book.account|"
            "DB Error: Der Datensatz ist nicht mehr vorhanden.)$");
        for (const QString &message : env.desktop.TakeMessages().split(u'|', Qt::SkipEmptyParts)) {
            EXPECT_TRUE(known.match(message).hasMatch()) << message;
        }
        env.desktop.printout->clear();
        env.desktop.opened.clear();
    }

    QString Count(const QString &condition) const {
        return env.Value("SELECT count(*) FROM cash_journal WHERE " + condition);
    }

private:
    template <class Value, class Values>
    Value Pick(const Values &values) {
        return values[typename Values::size_type(randomBelow(int(values.size())))];
    }

    /// Closes all pop-ups, and shows the window again if a command has closed it.
    void RestoreWindow() {
        while (QWidget *popup = QApplication::activePopupWidget()) {
            popup->close();
        }
        view.show();
        view.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }
    void Submit() {
        RestoreWindow();
        window.MenuAction("cashbook");
        window.MenuAction("new");
        const bool isReceipt = randomBelow(2) == 0;
        Fill("DateField", u"%1.%2.%3"_s.arg(1 + randomBelow(31))
                              .arg(1 + randomBelow(12))
                              .arg(2025 + randomBelow(3)));
        Fill(isReceipt ? "InputField" : "OutputField",
             u"%1,%2"_s.arg(randomBelow(5000)).arg(randomBelow(1000)));
        Fill("CategoryCombo", Pick<QString>(texts));
        Fill("NoteField", Pick<QString>(texts));
        Press(Qt::Key_Return, {});
    }
    void Fill(const QString &name, const QString &text) {
        auto *field = view.findChild<QWidget *>(name);
        field->setFocus();
        Press(Qt::Key_A, Qt::ControlModifier);
        TypeText(text);
    }
    void ChangeRow() {
        view.findChild<QTableView *>("CashList")->setFocus();
        Press(Qt::Key_Home, {});
        for (int times = randomBelow(9); times > 0; --times) {
            Press(Qt::Key_Down, {});
        }
        window.MenuAction(Pick<QString>(QStringList{"edit", "copy", "delete"}));
    }
    void Choose(QComboBox *box) {
        box->setFocus();
        for (int times = randomBelow(3); times >= 0; --times) {
            Press(randomBelow(2) == 0 ? Qt::Key_Down : Qt::Key_Up, {});
        }
    }
    void Click(QWidget &widget) {
        if (!widget.isVisible() || widget.size().isEmpty()) {
            return;
        }
        const QPoint position =
            widget.mapTo(&view, QPoint(randomBelow(widget.width()),
                                       randomBelow(widget.height() / (1 + randomBelow(9)) + 1)));
        const auto button = randomBelow(8) == 0 ? Qt::RightButton : Qt::LeftButton;
        QTest::mouseClick(view.windowHandle(), button, {}, position);
        QWidget *hit = view.childAt(position);
        if (hit != nullptr && randomBelow(4) == 0) {
            QTest::mouseDClick(hit, button, {}, hit->mapFrom(&view, position));
        }
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers heldKeys) {
        QTest::keyClick(view.windowHandle(), key, heldKeys);
    }
    static void TypeText(const QString &text) {
        for (const QChar each : text) {
            QKeyEvent press(QEvent::KeyPress, 0, {}, each);
            if (QWidget *field = QApplication::focusWidget()) {
                QApplication::sendEvent(field, &press);
            }
        }
    }

    /// Returns the SQL condition for the bookings in the selected period.
    QString Condition() const {
        const Selectors &selectors = window.selectors;
        const QString month = selectors.MonthPopup.RowTag(selectors.MonthPopup.ListIndex());
        return selectors.CashbookCondition() +
               u" AND vdate LIKE '%1%'"_s.arg(selectors.YearPopup.Text() +
                                              (month.isEmpty() ? month : u'-' + month));
    }
    /// Returns what the list must show: the opening balance, and the id and the balance of each
    /// booking.
    QStringList Stored() const {
        const Selectors &selectors = window.selectors;
        const QString lines = ReadWithShell(
            env.app,
            QString("SELECT id || '|E|' || ifnull(opening_balance, 0) FROM cash_book WHERE id = %1;"
                    "SELECT id || '|' || type || '|' || amount FROM cash_journal WHERE vdate < "
                    "'%2' AND %3;"
                    "SELECT 'rows';"
                    "SELECT id || '|' || type || '|' || amount FROM cash_journal WHERE %4 ORDER BY "
                    "vdate, "
                    "id")
                .arg(selectors.SelectedCashbookID())
                .arg(selectors.PeriodStartSQL(), selectors.CashbookCondition(), Condition()));
        const UserLocale &locale = env.app.Locale();
        Currency balance;
        QStringList stored;
        for (const QString &line : lines.split(u'\n')) {
            const QStringList fields = line.split(u'|');
            const double amount = TLXModule::AmountText2Value(fields.value(2));
            // The balance includes a booking with its amount as shown, rounded to cents.
            const double counted = stored.isEmpty()
                                       ? amount
                                       : TLXModule::AmountText2Value(locale.FormatAmount(amount));
            balance = balance + Currency::FromDouble(fields.value(1) == u'A' ? -counted : counted);
            const QString text = locale.FormatBalance(balance.ToDouble());
            if (line == u"rows" || !stored.isEmpty()) {
                stored.append(line == u"rows" ? text : fields[0] + u' ' + text);
            }
        }
        return stored;
    }

    const QStringList commands = {"new",    "edit",        "copy",     "delete", "print",
                                  "export", "preferences", "cashbook", "about"};
    const QStringList texts = {"Erlöse 19% USt", "12,50",   "1.250,00", "7", "-3",
                               "Bürobedarf",     "O'Neill", "31.12.",   "e", "ÄÖ ß€"};
    const std::vector<Qt::Key> keys = {
        Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Return,    Qt::Key_Escape, Qt::Key_Up,
        Qt::Key_Down,   Qt::Key_PageUp,  Qt::Key_PageDown,  Qt::Key_Home,   Qt::Key_End,
        Qt::Key_Insert, Qt::Key_Delete,  Qt::Key_Backspace, Qt::Key_F2,     Qt::Key_F4,
        Qt::Key_F10,    Qt::Key_Space,   Qt::Key_Plus,      Qt::Key_Minus,  Qt::Key_X,
        Qt::Key_V,      Qt::Key_Z,       Qt::Key_D,         Qt::Key_E,      Qt::Key_L,
        Qt::Key_N};
    const std::vector<Qt::KeyboardModifiers> modifiers = {{},
                                                          {},
                                                          {},
                                                          {},
                                                          Qt::ShiftModifier,
                                                          Qt::ControlModifier,
                                                          Qt::AltModifier,
                                                          Qt::MetaModifier,
                                                          Qt::ControlModifier | Qt::ShiftModifier,
                                                          Qt::KeypadModifier};

    Random randomBelow;
    TestEnvironment env{TestEnvironment::Storage::File};
    MainWindow window{env.app};
    const Listbox &bookings = window.journal.CashList;
    MainWindowView view{window, env.app.Locale(), env.app.Resources()};
};

using Actions = Endurance;

TEST_F(Actions, KeepTheListTheBalancesAndTheFileConsistent) {
    Run(1, [this] {
        RandomUser user([this](int limit) { return RandomBelow(limit); });
        for (int i = 1; i <= 800 && !HasFailure(); ++i) {
            SCOPED_TRACE(i);
            user.Act();
            ++counts["actions"];
            if (i % 100 == 0) {
                user.Check();
            }
        }
        counts["bookings at the end"] += user.Count("1").toInt();
    });
}
