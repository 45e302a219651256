#include "endurance/Child.h"
#include "endurance/Endurance.h"
#include "endurance/Program.h"

using namespace Qt::StringLiterals;

namespace {

/// A program that is killed at its work, again and again on the same book.
class Kill : public Endurance {
protected:
    /// Books, changes and deletes until somebody ends it, or a message comes. Tells what the book
    /// is to hold after a step, behind "?" when the step begins, "!" when it is done, and "+" when
    /// it is done and was a new booking.
    void Work(const Child::Tell &tell) {
        Program program(desktop);
        Listbox &list = program.window->journal.CashList;
        QStringList book = program.Stored();
        char done = '!';
        for (int step = 0; desktop.TakeMessages().isEmpty(); ++step) {
            tell(done + book.join(u' ').toUtf8());
            const int row = Any(3) == 0 ? Any(list.ListCount() + 1) - 1 : -1;
            const bool deletes = row >= 0 && Any(3) == 0;
            const QString number =
                row < 0 ? u"%1-%2"_s.arg(random()).arg(step) : list.Cell(row, Journal::SaleNumber);
            const QString amount = u"%1.%2"_s.arg(Any(10000)).arg(10 + Any(90));
            // Some notes take many pages of the file, and so a while to write.
            const auto times = row < 0 ? 1 + Any(4) / 3 * Any(10'000)
                                       : list.Cell(row, Journal::Note).size() / number.size();
            book.removeIf([&](const QString &line) { return line.startsWith(number + u'|'); });
            if (!deletes) {
                book.append(Program::Line(number, amount, int(times)));
            }
            book.sort();
            tell('?' + book.join(u' ').toUtf8());
            list.SetListIndex(row);
            if (row < 0) {
                program.Submit(number, amount, int(times));
            } else if (deletes) {
                program.window->MenuAction(u"delete"_s);
            } else {
                program.Change(amount);
            }
            done = row < 0 ? '+' : '!';
        }
    }

    /// Takes in what the child tells next; false at its end.
    bool Hear(const Child &child) {
        const QByteArray told = child.Line();
        if (told.isEmpty()) {
            return false;
        }
        const QStringList lines = QString::fromUtf8(told.mid(1)).split(u' ', Qt::SkipEmptyParts);
        if (told[0] == '+') {
            reported += Without(lines, before);
        }
        before = told[0] == '?' ? before : lines;
        after = lines;
        return true;
    }
    static QStringList Without(QStringList lines, const QStringList &gone) {
        lines.removeIf([&gone](const QString &line) { return gone.contains(line); });
        return lines;
    }

    /// Opens the book as its user would.
    void Reopen() {
        counts["rolled back"] += int(FolderItem(file.Path() + u"-journal"_s).Exists());
        Program program(desktop);
        const QString message = desktop.TakeMessages();
        const auto tables = program.app.kvoDB().SQLSelect(u"SELECT * FROM sqlite_master"_s);
        if (isNew && tables &&
            tables->AtEnd()) { // Its first steps stopped before there was a book.
            ++counts["creations cut short"];
            return;
        }
        EXPECT_EQ(message, QString());
        EXPECT_TRUE(program.IsSound());
        const QStringList stored = program.Stored();
        EXPECT_TRUE(stored == before || stored == after) << qPrintable(stored.join(u'\n'));
        EXPECT_EQ(program.window->journal.CashList.ListCount(), stored.size());
        for (const QString &line : std::exchange(reported, {})) {
            const bool isThere = before.contains(line) && after.contains(line);
            const auto times = stored.count(line);
            ++counts["bookings reported"];
            ++counts[!isThere     ? "changed or deleted again"
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
        if (isNew || Any(6) == 0) {
            static_cast<void>(file.Delete());
            before.clear();
            after.clear();
            isNew = true;
        }
        Child child([this](const Child::Tell &tell) { Work(tell); });
        // The first line comes when there is a book; then two for each step.
        const int lines = isNew && Any(2) == 0 ? 0 : Any(17);
        for (int line = 0; line < lines && Hear(child); ++line) {
            isNew = false;
        }
        usleep(static_cast<useconds_t>(Any(lines == 0 ? 120'000 : 20'000)));
        EXPECT_TRUE(child.Kill());
        while (Hear(child)) {
            isNew = false;
        }
        Reopen();
    });
}

} // namespace
