#include "Memory.h"

#include "LargeBook.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <cstdio>
#include <malloc.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// What has been freed before goes back to the system first: it is no part of what grows.
double ResidentKiB() {
    malloc_trim(0);
    QFile pages(u"/proc/self/statm"_s);
    EXPECT_TRUE(pages.open(QIODevice::ReadOnly));
    const double resident = pages.readAll().split(' ')[1].toDouble();
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
}

double GrowthOfJournal(LargeBook &env) {
    MainWindow window(env.env.app);
    window.selectors.GetCashbooks(); // No year yet: an empty journal, and a file that is read.
    const double before = ResidentKiB();
    window.selectors.GetJournalYears();
    return ResidentKiB() - before;
}

double GrowthOfTexts(const Listbox &list) {
    const double before = ResidentKiB();
    std::vector<std::array<QString, 8>> rows(static_cast<size_t>(list.ListCount()));
    for (size_t row = 0; row < rows.size(); ++row) {
        for (size_t column = 0; column < rows[row].size(); ++column) {
            const QString cell = list.Cell(static_cast<int>(row), static_cast<int>(column));
            rows[row][column] = QString(cell.constData(), cell.size());
        }
    }
    return ResidentKiB() - before;
}

double Measured(const QString &side) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {u"--memory"_s, side});
    process.waitForFinished(-1);
    return process.readAllStandardOutput().toDouble();
}

} // namespace

MemoryOfRows MeasureMemory() {
    return {.oursKiB = Measured(u"ours"_s), .bareKiB = Measured(u"bare"_s)};
}

int PrintGrowth(const std::string &side) {
    LargeBook env(200000);
    std::printf("%.0f\n", side == "ours" ? GrowthOfJournal(env)
                                         : GrowthOfTexts(env.window.journal.CashList));
    return 0;
}
