#include "endurance/Endurance.h"
#include "endurance/Program.h"

#include <QDir>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

/// Runs one or two programs on the same database file, and kills them again and again.
class Kill : public Endurance {
protected:
    /// Starts a process that works until it is killed.
    pid_t Start(const QString &path) {
        random.seed(random()); // A different sequence for each process.
        const pid_t id = fork();
        if (id == 0) {
            Work(path);
            _exit(0);
        }
        return id;
    }
    /// Adds, changes and deletes bookings until a message is shown. Logs each step with the number
    /// of the booking and its expected line, empty for none: after "?" when the step begins, and
    /// after "!" when it is done.
    void Work(const QString &path) {
        Program program(desktop);
        QFile log(path);
        EXPECT_TRUE(log.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const Listbox &list = program.window->journal.CashList;
        const auto step = [&](const QString &number, const QString &line, const auto &run) {
            log.write(("? " + number + u' ' + line + u'\n').toUtf8());
            run();
            log.write(("! " + number + u' ' + line + u'\n').toUtf8());
        };
        while (desktop.TakeMessages().isEmpty()) {
            const QString number = QString::number(random());
            // Some notes fill many pages of the file, which takes longer to write.
            const int times = 1 + RandomBelow(4) / 3 * RandomBelow(10'000);
            step(number, Program::Line(number, "1.50", times),
                 [&] { program.Submit(number, "1.50", times); });
            const auto row = int(list.Cell(-1, Journal::SaleNumber).split(u'\n').indexOf(number));
            if (RandomBelow(2) == 0) {
                step(number, Program::Line(number, "2.50", times),
                     [&] { program.Change(row, "2.50"); });
            } else if (RandomBelow(2) == 0) {
                step(number, {}, [&] { program.Delete(row); });
            }
        }
    }
    /// Kills a process and reads its log.
    void End(pid_t id, const QString &path) {
        int status = 0;
        EXPECT_TRUE(kill(id, SIGKILL) == 0 && waitpid(id, &status, 0) == id);
        EXPECT_TRUE(WIFSIGNALED(status)) << "the process ended by itself";
        QFile log(path);
        const bool hasLog = log.open(QIODevice::ReadOnly); // Created after the database file.
        while (hasLog && !log.atEnd()) {
            const QStringList entry = QString::fromUtf8(log.readLine()).chopped(1).split(u' ');
            // A step that was not logged as done may or may not be stored.
            allowed[entry[1]] = {entry[0] == u"?" ? allowed[entry[1]].value(0) : entry[2],
                                 entry[2]};
        }
        EXPECT_TRUE(!hasLog || log.remove());
    }

    FakeDesktop desktop;
    const FolderItem file = App(desktop, UserLocale(QLocale())).DefaultDatabaseFile();
    /// The allowed lines for each booking number.
    QMap<QString, QStringList> allowed;
};

TEST_F(Kill, NeitherLosesNorDuplicatesBookings) {
    Run(40, [this] {
        if (RandomBelow(6) == 0) {
            static_cast<void>(file.Delete());
            allowed.clear();
        }
        const bool alone = !file.Exists() || RandomBelow(2) == 0;
        const QStringList logs = {desktop.Path("first"), desktop.Path("second")};
        const pid_t first = Start(logs[0]);
        const pid_t second = alone ? 0 : Start(logs[1]);
        usleep(useconds_t(RandomBelow(150'000)));
        End(first, logs[0]);
        if (second != 0) {
            End(second, logs[1]);
        }
        const Program program(desktop);
        EXPECT_EQ(desktop.TakeMessages(), QString());
        EXPECT_TRUE(program.IsIntact());
        EXPECT_TRUE(QDir(file.Parent().Path()).entryList({"Zolmark.neu*"}).isEmpty());
        QMap<QString, QStringList> found;
        for (const QString &line : program.Stored()) {
            found[line.section(u'|', 0, 0)].append(line);
        }
        for (const auto &[number, lines] : allowed.asKeyValueRange()) {
            EXPECT_TRUE(lines.contains(found[number].join(u' '))) << number;
            lines = {found[number].join(u' ')};
        }
        EXPECT_EQ(found.keys(), allowed.keys());
        counts["bookings"] += int(program.Stored().size());
    });
}
