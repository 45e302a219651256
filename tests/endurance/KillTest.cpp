#include "endurance/Endurance.h"
#include "endurance/Program.h"

#include <QDir>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

/// Programs at work on one book, alone or two at a time, that are killed again and again.
class Kill : public Endurance {
protected:
    /// A program of its own process that works until somebody ends it.
    pid_t Start(const QString &path) {
        random.seed(random()); // Other numbers than any other's.
        const pid_t id = fork();
        if (id == 0) {
            Work(path);
            _exit(0);
        }
        return id;
    }
    /// Works until a message comes. Writes down each step with a number and the line that its booking is to have, empty
    /// for none: after "?" when it begins, and after "!" when it is done.
    void Work(const QString &path) {
        Program program(desktop);
        QFile diary(path);
        EXPECT_TRUE(diary.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const Listbox &list = program.window->journal.CashList;
        const auto step = [&](const QString &number, const QString &line, const auto &take) {
            diary.write((u"? "_s + number + u' ' + line + u'\n').toUtf8());
            take();
            diary.write((u"! "_s + number + u' ' + line + u'\n').toUtf8());
        };
        while (desktop.TakeMessages().isEmpty()) {
            const QString number = QString::number(random());
            // Some notes take many pages of the file, and so a while to write.
            const int times = 1 + Any(4) / 3 * Any(10'000);
            step(number, Program::Line(number, u"1.50"_s, times), [&] { program.Submit(number, u"1.50"_s, times); });
            const auto row = int(list.Cell(-1, Journal::SaleNumber).split(u'\n').indexOf(number));
            if (Any(2) == 0) {
                step(number, Program::Line(number, u"2.50"_s, times), [&] { program.Change(row, u"2.50"_s); });
            } else if (Any(2) == 0) {
                step(number, {}, [&] { program.Delete(row); });
            }
        }
    }
    /// Ends a program, and reads what it has written down.
    void End(pid_t id, const QString &path) {
        int status = 0;
        EXPECT_TRUE(kill(id, SIGKILL) == 0 && waitpid(id, &status, 0) == id);
        EXPECT_TRUE(WIFSIGNALED(status)) << "ended by itself";
        QFile diary(path);
        const bool isThere = diary.open(QIODevice::ReadOnly); // Not before there is a book.
        while (isThere && !diary.atEnd()) {
            const QStringList told = QString::fromUtf8(diary.readLine()).chopped(1).split(u' ');
            // A step that was only begun may have been taken or not.
            may[told[1]] = {told[0] == u"?" ? may[told[1]].value(0) : told[2], told[2]};
        }
        EXPECT_TRUE(!isThere || diary.remove());
    }

    FakeDesktop desktop;
    const FolderItem file = App(desktop, UserLocale(QLocale())).DefaultDatabaseFile();
    /// The lines that the booking of a number may have.
    QMap<QString, QStringList> may;
};

TEST_F(Kill, LosesAndDoublesNothing) {
    Run(40, [this] {
        if (Any(6) == 0) {
            static_cast<void>(file.Delete());
            may.clear();
        }
        const bool alone = !file.Exists() || Any(2) == 0;
        const QStringList diaries = {desktop.Path(u"first"_s), desktop.Path(u"second"_s)};
        const pid_t first = Start(diaries[0]);
        const pid_t second = alone ? 0 : Start(diaries[1]);
        usleep(useconds_t(Any(150'000)));
        End(first, diaries[0]);
        if (second != 0) { End(second, diaries[1]); }
        const Program program(desktop);
        EXPECT_EQ(desktop.TakeMessages(), QString());
        EXPECT_TRUE(program.IsSound());
        EXPECT_TRUE(QDir(file.Parent().Path()).entryList({u"Zolmark.neu*"_s}).isEmpty());
        QMap<QString, QStringList> found;
        for (const QString &line : program.Stored()) { found[line.section(u'|', 0, 0)].append(line); }
        for (const auto &[number, lines] : may.asKeyValueRange()) {
            EXPECT_TRUE(lines.contains(found[number].join(u' '))) << qPrintable(number);
            lines = {found[number].join(u' ')};
        }
        EXPECT_EQ(found.keys(), may.keys());
        counts["bookings"] += int(program.Stored().size());
    });
}
