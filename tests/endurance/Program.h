#pragma once

#include "setup/WelcomeWindow.h"
#include "support/TestEnvironment.h"

/// The program from its start, without widgets: the welcome window creates a database file if none
/// exists, and opens the main window. Failures are shown as messages of the desktop.
class Program {
public:
    explicit Program(FakeDesktop &desktop)
        : app(desktop, UserLocale(QLocale(QLocale::German, QLocale::Germany))) {
        QObject::connect(&welcome, &WelcomeWindow::MainWindowRequested, &welcome, [this] {
            window.emplace(app);
            window->Event_Open();
        });
        welcome.Event_Open();
        if (!window) {
            welcome.AccountsPopup.SetListIndex(1);
            welcome.SaveButton.Press();
        }
    }

    /// Adds a receipt with a voucher number, and with a note that repeats the number so many times.
    void Submit(const QString &number, const QString &amount, int times = 1) {
        EntryRow &row = window->entryRow;
        row.InputField.SetText(amount);
        row.pickLists.CategoryCombo.SetListIndex(0);
        row.SaleNumberField.SetText(number);
        row.NoteField.SetText(number.repeated(times));
        row.SubmitButton.Press();
    }
    void Change(int listRow, const QString &amount) {
        window->journal.CashList.SetListIndex(listRow);
        window->MenuAction("edit");
        window->entryRow.InputField.SetText(amount);
        window->entryRow.ChangeButton.Press();
    }
    void Delete(int listRow) {
        window->journal.CashList.SetListIndex(listRow);
        window->MenuAction("delete");
    }

    /// Returns all bookings in the order of their ids, each in the format of Line(), or as "half"
    /// if it is incomplete.
    QStringList Stored() const {
        return Lines(
            "SELECT CASE WHEN replace(note, salesnumber, '') = '' AND vdate || tax || category || "
            "cashbookID || bdate || account > '' THEN salesnumber || '|' || type || '|' || "
            "printf('%.2f', amount) || '|' || input || '|' || length(note) ELSE 'half' END "
            "FROM cash_journal ORDER BY id");
    }
    static QString Line(const QString &number, const QString &amount, int times) {
        return u"%1|E|%2|%2|%3"_s.arg(number, amount).arg(number.size() * times);
    }
    /// Returns whether the file passes SQLCipher's integrity checks; version 4 also lists each
    /// damaged page.
    bool IsIntact() const {
        return Lines("PRAGMA integrity_check").join(u' ') == u"ok" &&
               Lines("PRAGMA cipher_integrity_check").isEmpty();
    }

    App app;
    WelcomeWindow welcome{app};
    std::optional<MainWindow> window;

private:
    QStringList Lines(const QString &sql) const {
        QStringList lines;
        const auto records = app.kvoDB().SQLSelect(sql);
        for (; records && !records->AtEnd(); records->MoveNext()) {
            lines.append(records->IdxField(1).StringValue());
        }
        EXPECT_EQ(app.kvoDB().ErrorMessage(), QString());
        return lines;
    }
};
