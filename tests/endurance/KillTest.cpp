#include "endurance/Child.h"
#include "endurance/Endurance.h"
#include "endurance/Program.h"

using namespace Qt::StringLiterals;

namespace {

/// A program that is killed at its work, again and again on the same book.
class Kill : public Endurance {
protected:
    /// Books, changes and deletes until somebody ends it, or a message comes. Tells the lines that
    /// the book is to hold after a step, behind "?" when it begins and behind "!" when it is done.
    void Work(int pipe) {
        Program program(desktop);
        Listbox &list = program.window->journal.CashList;
        QStringList book = program.Stored();
        while (desktop.TakeMessages().isEmpty()) {
            Child::Tell(pipe, '!' + book.join(u' ').toUtf8());
            const int row = Any(3) == 0 ? Any(list.ListCount() + 1) - 1 : -1;
            const QString number =
                row < 0 ? QString::number(random()) : list.Cell(row, Journal::SaleNumber);
            const QString amount = u"%1.%2"_s.arg(Any(10000)).arg(10 + Any(90));
            // Some notes take many pages of the file, and so a while to write.
            const auto times = row < 0 ? 1 + Any(4) / 3 * Any(10'000)
                                       : list.Cell(row, Journal::Note).size() / number.size();
            const bool deletes = row >= 0 && Any(3) == 0;
            book.removeIf([&](const QString &line) { return line.startsWith(number + u'|'); });
            book +=
                deletes ? QStringList() : QStringList(Program::Line(number, amount, int(times)));
            book.sort();
            Child::Tell(pipe, '?' + book.join(u' ').toUtf8());
            if (deletes) {
                list.SetListIndex(row);
                program.window->MenuAction(u"delete"_s);
            } else if (row >= 0) {
                program.Change(row, amount);
            } else {
                program.Submit(number, amount, int(times));
            }
        }
    }

    /// Takes in what the child tells next; false at its end.
    bool Hear(const Child &child) {
        const QByteArray told = child.Line();
        if (told.isEmpty()) {
            return false;
        }
        isNew = false;
        after = QString::fromUtf8(told.mid(1)).split(u' ', Qt::SkipEmptyParts);
        if (told[0] == '!') {
            std::ranges::set_difference(after, std::exchange(before, after),
                                        std::back_inserter(reported));
        }
        return true;
    }

    /// Opens the book as its user would.
    void Reopen() {
        counts["writes rolled back"] += int(QFile::exists(file.Path() + u"-journal"_s));
        Program program(desktop);
        const auto tables = program.app.kvoDB().SQLSelect(u"SELECT * FROM sqlite_master"_s);
        if (isNew && tables && tables->AtEnd()) { // It was killed before there was a book.
            ++counts["creations cut short"];
            desktop.TakeMessages();
            return;
        }
        EXPECT_EQ(desktop.TakeMessages(), QString());
        EXPECT_TRUE(program.IsSound());
        const QStringList stored = program.Stored();
        EXPECT_TRUE(stored == before || stored == after) << qPrintable(stored.join(u'\n'));
        EXPECT_EQ(program.window->journal.CashList.ListCount(), stored.size());
        for (const QString &line : std::exchange(reported, {})) {
            const auto times = stored.count(line);
            const bool stays = before.contains(line) && after.contains(line);
            ++counts["bookings reported"];
            ++counts[!stays       ? "changed or deleted again"
                     : times == 1 ? "found"
                     : times == 0 ? "lost"
                                  : "doubled"];
        }
        before = after = stored;
    }

    FakeDesktop desktop;
    const FolderItem file = App(desktop, UserLocale(QLocale())).DefaultDatabaseFile();
    bool isNew = true;
    /// The bookings that must be there: before the step that was begun last, and after it.
    QStringList before;
    QStringList after;
    QStringList reported;
};

TEST_F(Kill, LosesAndDoublesNothing) {
    counts = {{"bookings reported", 0}, {"found", 0}, {"lost", 0}, {"doubled", 0}};
    Run(40, [this] {
        isNew = isNew || Any(6) == 0;
        if (isNew) {
            static_cast<void>(file.Delete());
            before = after = QStringList();
        }
        Child child([this](int pipe) { Work(pipe); });
        // The first line comes when there is a book; then two for each step.
        int lines = isNew && Any(2) == 0 ? 0 : Any(17);
        usleep(lines == 0 ? useconds_t(Any(100'000)) : 0);
        while (lines-- > 0 && Hear(child)) {
        }
        usleep(useconds_t(Any(20'000)));
        EXPECT_EQ(child.End(SIGKILL), SIGKILL);
        while (Hear(child)) {
        }
        Reopen();
    });
}

} // namespace
