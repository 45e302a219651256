#pragma once

#include "endurance/Endurance.h"
#include "setup/WelcomeWindow.h"
#include "support/TestEnvironment.h"

#include <QMap>

/// The program from its start, without widgets. It creates a missing database file.
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

    /// Runs a command on the booking with a voucher number. After "new" and "edit" saves the amount
    /// and a note that repeats the number so many times.
    void Run(const QString &command, const QString &number, const QString &amount) {
        Listbox &list = window->journal.CashList;
        list.SetListIndex(int(list.Cell(-1, Journal::SaleNumber).split('\n').indexOf(number)));
        window->MenuAction(command);
        EntryRow &row = window->entryRow;
        row.InputField.SetText(amount);
        row.pickLists.CategoryCombo.SetListIndex(0);
        row.SaleNumberField.SetText(number);
        row.NoteField.SetText(number.repeated(amount.toInt()));
        (command == "new" ? row.SubmitButton : row.ChangeButton).Press();
    }

    /// Returns the amount for each voucher number; empty or 0 if the booking is incomplete.
    QMap<QString, QString> Bookings() const {
        return Read("SELECT salesnumber, input * (type = 'E' AND amount = input AND "
                    "length(replace(note, salesnumber, ' ')) = input AND vdate || tax || category "
                    "|| cashbookID || bdate || account > '') FROM cash_journal");
    }
    /// Returns "ok", or the damage; version 4 of SQLCipher lists each page.
    QStringList Integrity() const {
        return Read("PRAGMA integrity_check").keys() + Read("PRAGMA cipher_integrity_check").keys();
    }
    /// Returns the second column by the first one; joins duplicates.
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

struct ProgramTest : Endurance {
    FakeDesktop desktop;
    QFile file{desktop.Path("data/Brevant/Zolmark.sdb")};
};
