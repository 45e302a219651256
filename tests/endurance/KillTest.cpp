#include "endurance/Program.h"

#include <QDir>
#include <QTextStream>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

class Kill : public ProgramTest {
protected:
    /// Starts a process that adds, changes and deletes bookings until a message is shown. It logs
    /// the amounts that a booking may have in the file: two before each step, one after it.
    pid_t Start() {
        generator.seed(generator()); // A different sequence for each process.
        if (const pid_t id = fork()) {
            return id;
        }
        Program program(desktop);
        while (desktop.TakeMessages().isEmpty()) {
            const QString number = QString::number(generator());
            QString before;
            for (const QString command : {"new", "edit", "delete"}) {
                // Some notes fill many pages of the file, which takes longer to write.
                const int amount = 1 + RandomBelow(4) / 3 * RandomBelow(10'000);
                const QString after = command == "delete" ? "" : QString::number(amount);
                log << number << ' ' << before << ' ' << after << Qt::endl;
                program.Run(command, number, after);
                log << number << ' ' << after << Qt::endl;
                before = after;
                if (RandomBelow(3) == 0) {
                    break;
                }
            }
        }
        _exit(0);
    }
    static void End(pid_t id) {
        int status = 0;
        kill(id, SIGKILL);
        waitpid(id, &status, 0);
        EXPECT_EQ(status, SIGKILL);
    }

    QFile logFile{desktop.Path("log")};
    QTextStream log{&logFile};
    /// The allowed amounts for each voucher number.
    QMap<QString, QStringList> allowed;
};

TEST_F(Kill, NeitherLosesNorDuplicatesBookings) {
    Run(40, [this] {
        if (RandomBelow(6) == 0) {
            file.remove();
            allowed.clear();
        }
        EXPECT_TRUE(logFile.open(QIODevice::ReadWrite | QIODevice::Truncate | QIODevice::Append));
        QList<pid_t> processes(file.exists() ? 1 + RandomBelow(2) : 1);
        std::ranges::generate(processes, [this] { return Start(); });
        usleep(useconds_t(RandomBelow(150'000)));
        std::ranges::for_each(processes, End);
        log.seek(0);
        for (const QString &entry : log.readAll().split('\n', Qt::SkipEmptyParts)) {
            allowed[entry.section(' ', 0, 0)] = entry.split(' ').sliced(1);
        }
        logFile.close();
        const Program program(desktop);
        EXPECT_EQ(desktop.TakeMessages(), "");
        EXPECT_EQ(program.Integrity(), QStringList("ok"));
        EXPECT_EQ(QFileInfo(file).dir().entryList({"*.neu*"}), QStringList());
        QMap<QString, QString> found = program.Bookings();
        counts["bookings"] += int(found.size());
        for (const auto &[number, amounts] : allowed.asKeyValueRange()) {
            EXPECT_TRUE(amounts.contains(found[number])) << number;
            amounts = {found[number]};
        }
        EXPECT_EQ(found.keys(), allowed.keys());
    });
}
