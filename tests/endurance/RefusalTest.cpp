#include "endurance/Program.h"
#include "support/FullDisk.h"

#include <QDir>

#include <fstream>

using Refusal = ProgramTest;

TEST_F(Refusal, IsReportedAndLeavesTheFilesUnchanged) {
    const QString path = desktop.Path("export.txt");
    desktop.fileToSave = FolderItem(path);
    const QStringList commands = {"new", "edit", "export", "delete"};
    const QStringList messages = {
        "disk I/O error", "DB Error: disk I/O error",
        "Die Datei " + path + " konnte nicht geschrieben werden: File too large", ""};
    Run(60, [&] {
        file.remove();
        std::optional<Program> program(desktop);
        program->Run("new", "R1", "2");
        const auto before = program->Bookings();
        std::ofstream(path.toStdString()) << "before";
        const int step = RandomBelow(4);
        {
            // The rollback journal or the database becomes too long.
            const qint64 begin = RandomBelow(4) == 0 ? 0 : file.size();
            const FullDisk disk(rlim_t(begin + RandomBelow(begin == 0 ? 1000 : 20'000)));
            program.emplace(desktop).Run(commands[step], step == 0 ? "R2" : "R1",
                                         QString::number(3 + RandomBelow(3000)));
        }
        const bool isWritten = program->Bookings() != before || QFileInfo(path).size() != 6;
        EXPECT_EQ(desktop.TakeMessages(), isWritten ? "" : messages[step]);
        EXPECT_EQ(program->window->journal.CashList.ListCount(), program->Bookings().size());
        EXPECT_EQ(QDir(desktop.Path("")).entryList(QDir::Files), QStringList("export.txt"));
        EXPECT_EQ(program->Integrity(), QStringList("ok"));
        ++counts[isWritten ? "written" : "refused"];
    });
}
