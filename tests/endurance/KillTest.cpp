#include "endurance/Child.h"
#include "endurance/Endurance.h"
#include "endurance/Program.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

/// A program that is killed at its work, again and again on the same book.
class Kill : public Endurance {
protected:
    /// Books, changes and deletes until somebody ends it, or a message comes. Tells the lines that
    /// the book is to hold after a step, after "?" when it begins and after "!" when it is done.
    void Work(int pipe) {
        Program program(desktop);
        Listbox &list = program.window->journal.CashList;
        QStringList book = program.Stored();
        const auto tell = [&](char sign) { Child::Tell(pipe, sign + book.join(u' ').toUtf8()); };
        while (desktop.TakeMessages().isEmpty()) {
            tell('!');
            const int row = Any(3) == 0 ? Any(list.ListCount() + 1) - 1 : -1;
            if (row < 0) {
                const QString number = QString::number(random());
                // Some notes take many pages of the file, and so a while to write.
                const int times = 1 + Any(4) / 3 * Any(10'000);
                book.append(Program::Line(number, u"1.50"_s, times));
                tell('?');
                program.Submit(number, u"1.50"_s, times);
            } else if (Any(3) == 0) {
                book.removeAt(row);
                tell('?');
                program.Delete(row);
            } else {
                book[row].replace(u"1.50"_s, u"2.50"_s);
                tell('?');
                program.Change(row, u"2.50"_s);
            }
        }
    }

    /// Opens the book as its user would.
    void Reopen() {
        Program program(desktop);
        EXPECT_EQ(desktop.TakeMessages(), QString());
        EXPECT_TRUE(program.IsSound());
        const QStringList stored = program.Stored();
        EXPECT_TRUE(stored == before || stored == after) << qPrintable(stored.join(u'\n'));
        for (const QString &line : before) {
            if (after.contains(line) && !known.contains(line)) {
                const auto times = stored.count(line);
                ++counts["bookings reported"];
                ++counts[times == 1 ? "found" : times == 0 ? "lost" : "doubled"];
            }
        }
        before = after = known = stored;
    }

    FakeDesktop desktop;
    const FolderItem file = App(desktop, UserLocale(QLocale())).DefaultDatabaseFile();
    bool isNew = true;
    /// The bookings that were there at the start of the program.
    QStringList known;
    /// Those that must be there: before the step that was begun last, and after it.
    QStringList before;
    QStringList after;
};

TEST_F(Kill, LeavesAWholeBookOrNoneAndTheNextAttemptWorks) {
    Run(10, [this] {
        static_cast<void>(file.Delete());
        {
            Child child([this](int /*pipe*/) {
                const Program program(desktop);
                pause();
            });
            usleep(useconds_t(Any(90'000)));
            child.End(SIGKILL);
        }
        ++counts[file.Exists() ? "whole" : "none"];
        const Program program(desktop);
        EXPECT_EQ(desktop.TakeMessages(), QString());
        EXPECT_TRUE(program.window && program.IsSound());
        EXPECT_EQ(QDir(file.Parent().Path()).entryList(QDir::Files | QDir::Hidden),
                  QStringList(u"Zolmark.sdb"_s));
    });
}

TEST_F(Kill, LosesAndDoublesNothing) {
    counts = {{"bookings reported", 0}, {"found", 0}, {"lost", 0}, {"doubled", 0}};
    Run(40, [this] {
        isNew = isNew || Any(6) == 0;
        if (isNew) {
            static_cast<void>(file.Delete());
            before = after = known = QStringList();
        }
        Child child([this](int pipe) { Work(pipe); });
        if (isNew && Any(2) == 0) {
            usleep(useconds_t(Any(100'000)));
            child.End(SIGKILL);
        }
        // The first line comes when there is a book; then two for each step.
        int lines = Any(17);
        for (QByteArray told = child.Line(); !told.isEmpty(); told = child.Line()) {
            isNew = false;
            after = QString::fromUtf8(told.mid(1)).split(u' ', Qt::SkipEmptyParts);
            before = told[0] == '!' ? after : before;
            if (lines-- == 0) {
                usleep(useconds_t(Any(20'000)));
                child.End(SIGKILL);
            }
        }
        EXPECT_EQ(child.End(), -1) << "ended by itself";
        Reopen();
    });
}

} // namespace
