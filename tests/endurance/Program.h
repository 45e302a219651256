#pragma once

#include "endurance/Endurance.h"
#include "setup/WelcomeWindow.h"
#include "support/TestEnvironment.h"

/// The program from its start, without widgets. The welcome window creates a missing database file
/// and opens the main window.
struct Program {
    explicit Program(FakeDesktop &desktop) : app(desktop, UserLocale(QLocale())) {
        QObject::connect(&welcome, &WelcomeWindow::MainWindowRequested, &welcome,
                         [this] { window.emplace(app).Event_Open(); });
        welcome.Event_Open();
        if (!window) {
            welcome.AccountsPopup.SetListIndex(1);
            welcome.SaveButton.Press();
        }
    }

    /// Runs a command on the booking with a voucher number. With an amount, saves a receipt with a
    /// note that repeats the number so many times.
    void Run(const QString &command, const QString &number, const QString &amount = {}) {
        Listbox &list = window->journal.CashList;
        list.SetListIndex(int(list.Cell(-1, Journal::SaleNumber).split('\n').indexOf(number)));
        window->MenuAction(command);
        if (!amount.isEmpty()) {
            EntryRow &row = window->entryRow;
            row.InputField.SetText(amount);
            row.pickLists.CategoryCombo.SetListIndex(0);
            row.SaleNumberField.SetText(number);
            row.NoteField.SetText(number.repeated(amount.toInt()));
            (command == "new" ? row.SubmitButton : row.ChangeButton).Press();
        }
    }

    /// Returns the amount for each voucher number; empty or 0 if the booking is incomplete.
    QMap<QString, QString> Bookings() const {
        return Read("SELECT salesnumber, input * (type = 'E' AND amount = input AND "
                    "length(replace(note, salesnumber, ' ')) = input AND vdate || tax || category "
                    "|| cashbookID || bdate || account > '') FROM cash_journal");
    }
    /// Returns "ok" or what SQLCipher's checks find; those of version 4 list each damaged page.
    QStringList Integrity() const {
        return Read("PRAGMA integrity_check").keys() + Read("PRAGMA cipher_integrity_check").keys();
    }
    /// Returns the second column by the first one; joins those with the same first one.
    QMap<QString, QString> Read(const QString &sql) const {
        QMap<QString, QString> rows;
        const auto records = app.kvoDB().SQLSelect(sql);
        for (; records && !records->AtEnd(); records->MoveNext()) {
            rows[records->IdxField(1).StringValue()] += records->IdxField(2).StringValue();
        }
        EXPECT_EQ(app.kvoDB().ErrorMessage(), "");
        return rows;
    }

    App app;
    WelcomeWindow welcome{app};
    std::optional<MainWindow> window;
};

/// Starts programs with the same database file.
class ProgramTest : public Endurance {
protected:
    FakeDesktop desktop;
    QFile file{desktop.Path("data/Brevant/Zolmark.sdb")};
};
