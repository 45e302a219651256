#include "endurance/Program.h"

#include <QDir>
#include <QTextStream>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

struct Kill : ProgramTest {
    /// Starts a process that books until a message is shown. It logs the amounts that a booking may
    /// have: two before each step, one after it.
    pid_t Start() {
        generator.seed(generator()); // A different sequence for each process.
        if (const pid_t id = fork()) {
            return id;
        }
        Program program(desktop);
        while (desktop.TakeMessages().isEmpty()) {
            const QString number = QString::number(generator());
            QString before;
            for (const auto &step :
                 QStringList{"new", "edit", "delete"}.first(1 + RandomBelow(3))) {
                // Some notes fill many pages, which takes longer to write.
                const int amount = 1 + RandomBelow(4) / 3 * RandomBelow(10'000);
                const QString after = step == "delete" ? "" : QString::number(amount);
                log << number << ' ' << before << ' ' << after << Qt::endl;
                program.Run(step, number, after);
                log << number << ' ' << after << Qt::endl;
                before = after;
            }
        }
        _exit(0);
    }
    void ReadLog() {
        log.seek(0);
        for (const QString &entry : log.readAll().split('\n', Qt::SkipEmptyParts)) {
            allowed[entry.section(' ', 0, 0)] = entry.split(' ').sliced(1);
        }
        logFile.remove();
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
        EXPECT_TRUE(logFile.open(QIODevice::ReadWrite | QIODevice::Append));
        QList<pid_t> ids(file.exists() ? 1 + RandomBelow(2) : 1);
        for (pid_t &id : ids) {
            id = Start();
        }
        usleep(useconds_t(RandomBelow(150'000)));
        for (const pid_t id : ids) {
            int status = 0;
            kill(id, SIGKILL);
            waitpid(id, &status, 0);
            EXPECT_EQ(status, SIGKILL);
        }
        ReadLog();
        const Program program(desktop);
        EXPECT_EQ(desktop.TakeMessages(), "");
        EXPECT_EQ(program.Integrity(), QStringList("ok"));
        EXPECT_EQ(QFileInfo(file).dir().entryList({"*.neu*"}), QStringList());
        auto found = program.Bookings();
        counts["bookings"] += int(found.size());
        for (const auto &[number, amounts] : allowed.asKeyValueRange()) {
            EXPECT_TRUE(amounts.contains(found[number])) << number;
            amounts = {found[number]};
        }
        EXPECT_EQ(found.keys(), allowed.keys());
    });
}
