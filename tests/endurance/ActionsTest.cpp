#include "core/TLXModule.h"
#include "endurance/Endurance.h"
#include "support/MainWindowTest.h"

/// The main window on a database file of its own, with a user who does anything.
class RandomUser {
public:
    using Dice = std::function<int(int)>;
    explicit RandomUser(Dice dice) : any(std::move(dice)) {
        env.desktop.paper.emplace();
        env.desktop.fileToSave = FolderItem(env.desktop.Path(u"export.txt"_s));
        window.Event_Open();
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }

    void Act() {
        env.desktop.menuChoice = any(2);
        const int dice = any(20);
        if (dice < 2) {
            Submit();
        } else if (dice < 3) {
            ChangeRow();
        } else if (dice < 4) {
            Choose(Pick<QComboBox *>(view.findChildren<QComboBox *>()));
        } else if (dice < 6) {
            Click(*Pick<QTableView *>(view.findChildren<QTableView *>())->viewport());
        } else if (dice < 8) {
            Click(*Pick<QWidget *>(view.findChildren<QWidget *>()));
        } else if (dice < 10) {
            window.MenuAction(Pick<QString>(commands));
        } else if (dice < 14) {
            TypeText(Pick<QString>(texts));
        } else {
            Press(Pick<Qt::Key>(keys), Pick<Qt::KeyboardModifiers>(modifiers));
        }
        QApplication::processEvents();
        if (window.PagePanel1.Value() == MainWindow::JournalPage) {
            EXPECT_EQ(QString::number(bookings.ListCount()), Count(Condition()));
        }
    }

    /// Compares the journal, as it shows on its page, with what the shell reads in the file.
    void Check() {
        ComeBack();
        if (window.PagePanel1.Value() != MainWindow::JournalPage) { window.MenuAction(u"cashbook"_s); }
        QStringList shown = {window.balances.OpeningBalanceLabel.Text()};
        for (int row = 0; row < bookings.ListCount(); ++row) {
            shown.append(bookings.RowTag(row) + u' ' + bookings.Cell(row, Journal::Balance));
        }
        EXPECT_EQ(shown, Stored());
        EXPECT_EQ(window.balances.LastAmountLabel.Text(), bookings.Cell(bookings.LastIndex(), Journal::Balance));
        EXPECT_EQ(env.Value(u"PRAGMA integrity_check"_s), u"ok"_s);
        // The last is that of a booking which was deleted while it was open for change.
        static const QRegularExpression known(u"^(Hauptkasse kann nicht gelöscht werden!|"
                                              "DB Error: UNIQUE constraint failed: cash_book.account|"
                                              "DB Error: Der Datensatz ist nicht mehr vorhanden.)$"_s);
        for (const QString &message : env.desktop.TakeMessages().split(u'|', Qt::SkipEmptyParts)) {
            EXPECT_TRUE(known.match(message).hasMatch()) << qPrintable(message);
        }
        env.desktop.paper->clear();
        env.desktop.opened.clear();
    }

    QString Count(const QString &condition) const {
        return env.Value(u"SELECT count(*) FROM cash_journal WHERE "_s + condition);
    }

private:
    template <class Value, class Values>
    Value Pick(const Values &values) {
        return values[typename Values::size_type(any(int(values.size())))];
    }

    /// Closes what is open over the window, and shows the window again if a command has closed it.
    void ComeBack() {
        while (QWidget *popup = QApplication::activePopupWidget()) { popup->close(); }
        view.show();
        view.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }
    void Submit() {
        ComeBack();
        window.MenuAction(u"cashbook"_s);
        window.MenuAction(u"new"_s);
        const bool isReceipt = any(2) == 0;
        Fill(u"DateField"_s, u"%1.%2.%3"_s.arg(1 + any(31)).arg(1 + any(12)).arg(2025 + any(3)));
        Fill(isReceipt ? u"InputField"_s : u"OutputField"_s, u"%1,%2"_s.arg(any(5000)).arg(any(1000)));
        Fill(u"CategoryCombo"_s, Pick<QString>(texts));
        Fill(u"NoteField"_s, Pick<QString>(texts));
        Press(Qt::Key_Return, {});
    }
    void Fill(const QString &name, const QString &text) {
        auto *field = view.findChild<QWidget *>(name);
        field->setFocus();
        Press(Qt::Key_A, Qt::ControlModifier);
        TypeText(text);
    }
    void ChangeRow() {
        view.findChild<QTableView *>(u"CashList"_s)->setFocus();
        Press(Qt::Key_Home, {});
        for (int times = any(9); times > 0; --times) { Press(Qt::Key_Down, {}); }
        window.MenuAction(Pick<QString>(QStringList{u"edit"_s, u"copy"_s, u"delete"_s}));
    }
    void Choose(QComboBox *box) {
        box->setFocus();
        for (int times = any(3); times >= 0; --times) { Press(any(2) == 0 ? Qt::Key_Down : Qt::Key_Up, {}); }
    }
    void Click(QWidget &widget) {
        if (!widget.isVisible() || widget.size().isEmpty()) { return; }
        const QPoint place = widget.mapTo(&view, QPoint(any(widget.width()), any(widget.height() / (1 + any(9)) + 1)));
        const auto button = any(8) == 0 ? Qt::RightButton : Qt::LeftButton;
        QTest::mouseClick(view.windowHandle(), button, {}, place);
        QWidget *hit = view.childAt(place);
        if (hit != nullptr && any(4) == 0) { QTest::mouseDClick(hit, button, {}, hit->mapFrom(&view, place)); }
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers with) { QTest::keyClick(view.windowHandle(), key, with); }
    static void TypeText(const QString &text) {
        for (const QChar each : text) {
            QKeyEvent press(QEvent::KeyPress, 0, {}, each);
            if (QWidget *field = QApplication::focusWidget()) { QApplication::sendEvent(field, &press); }
        }
    }

    /// The condition of the bookings in the selected period.
    QString Condition() const {
        const Selectors &at = window.selectors;
        const QString month = at.MonthPopup.RowTag(at.MonthPopup.ListIndex());
        return at.CashbookCondition() +
               u" AND vdate LIKE '%1%'"_s.arg(at.YearPopup.Text() + (month.isEmpty() ? month : u'-' + month));
    }
    /// What the list has to show: the opening balance, and the id and the balance of each booking.
    QStringList Stored() const {
        const Selectors &at = window.selectors;
        const QString lines = ReadWithShell(
            env.app, u"SELECT id || '|E|' || ifnull(opening_balance, 0) FROM cash_book WHERE id = %1;"
                     "SELECT id || '|' || type || '|' || amount FROM cash_journal WHERE vdate < '%2' AND %3;"
                     "SELECT 'rows';"
                     "SELECT id || '|' || type || '|' || amount FROM cash_journal WHERE %4 ORDER BY vdate, id"_s
                         .arg(at.SelectedCashbookID())
                         .arg(at.PeriodStartSQL(), at.CashbookCondition(), Condition()));
        const UserLocale &locale = env.app.Locale();
        Currency balance;
        QStringList stored;
        for (const QString &line : lines.split(u'\n')) {
            const QStringList fields = line.split(u'|');
            const double amount = TLXModule::AmountText2Value(fields.value(2));
            // A row counts with the cents that it shows.
            const double counted = stored.isEmpty() ? amount : TLXModule::AmountText2Value(locale.FormatAmount(amount));
            balance = balance + Currency::FromDouble(fields.value(1) == u'A' ? -counted : counted);
            const QString text = locale.FormatBalance(balance.ToDouble());
            if (line == u"rows" || !stored.isEmpty()) {
                stored.append(line == u"rows" ? text : fields[0] + u' ' + text);
            }
        }
        return stored;
    }

    const QStringList commands = {u"new"_s,    u"edit"_s,        u"copy"_s,     u"delete"_s, u"print"_s,
                                  u"export"_s, u"preferences"_s, u"cashbook"_s, u"about"_s};
    const QStringList texts = {u"Erlöse 19% USt"_s, u"12,50"_s,   u"1.250,00"_s, u"7"_s, u"-3"_s,
                               u"Bürobedarf"_s,     u"O'Neill"_s, u"31.12."_s,   u"e"_s, u"ÄÖ ß€"_s};
    const std::vector<Qt::Key> keys = {Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Return,    Qt::Key_Escape, Qt::Key_Up,
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

    Dice any;
    TestEnvironment env{TestEnvironment::Storage::File};
    MainWindow window{env.app};
    const Listbox &bookings = window.journal.CashList;
    MainWindowView view{window, env.app.Locale(), env.app.Resources()};
};

using Actions = Endurance;

TEST_F(Actions, LeaveListBalancesAndFileInAgreement) {
    Run(1, [this] {
        RandomUser user([this](int below) { return Any(below); });
        for (int i = 1; i <= 800 && !HasFailure(); ++i) {
            SCOPED_TRACE(i);
            user.Act();
            ++counts["actions"];
            if (i % 100 == 0) { user.Check(); }
        }
        counts["bookings at the end"] += user.Count(u"1"_s).toInt();
    });
}
