#include "Measures.h"

#include <QFile>

#include <cstdio>
#include <malloc.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Freed memory goes back to the system first.
double ResidentKiB() {
    malloc_trim(0);
    QFile pages(u"/proc/self/statm"_s);
    EXPECT_TRUE(pages.open(QIODevice::ReadOnly));
    const double resident = pages.readAll().split(' ')[1].toDouble();
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
}

double GrowthOfJournal(LargeDatabase &database) {
    MainWindow window(database.env.app);
    window.selectors.GetCashbooks(); // Reads the file; without a year the journal stays empty.
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

} // namespace

void PrintMemory(const std::string &side) {
    LargeDatabase database(200000);
    std::printf("%.0f\n", side == "ours" ? GrowthOfJournal(database)
                                         : GrowthOfTexts(database.window.journal.CashList));
}
