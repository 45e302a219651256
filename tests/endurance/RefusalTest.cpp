#include "endurance/Program.h"
#include "support/FullDisk.h"

#include <QDir>

#include <fstream>

using Refusal = ProgramTest;

TEST_F(Refusal, IsReportedAndLeavesTheFilesUnchanged) {
    const QStringList commands = {"new", "edit", "export", "delete"};
    const QStringList messages = {"", "DB Error: ", "Die Datei ", "none"};
    const QFile exported(desktop.Path("export.txt"));
    desktop.fileToSave = FolderItem(exported.fileName());
    Run(60, [&] {
        file.remove();
        std::optional<Program> program(desktop);
        program->Run("new", "R1", "2");
        const auto bookings = program->Bookings();
        std::ofstream(exported.fileName().toStdString()) << "before";
        const int step = RandomBelow(4);
        {
            // The rollback journal or the database becomes too long.
            const int bytes = RandomBelow(40'000);
            const FullDisk disk(bytes < 10'000 ? bytes / 10 : file.size() + bytes / 2);
            program.emplace(desktop).Run(commands[step], step == 0 ? "R2" : "R1",
                                         step < 2 ? QString::number(3 + RandomBelow(3000)) : "");
        }
        const QString message = desktop.TakeMessages();
        std::cerr << message << std::endl;
        EXPECT_FALSE(message.contains('|')) << message;
        const bool isWritten = program->Bookings() != bookings || exported.size() != 6;
        EXPECT_EQ(message.isEmpty(), isWritten || messages[step] == "none");
        EXPECT_TRUE(message.isEmpty() || message.startsWith(messages[step])) << message;
        EXPECT_EQ(program->window->journal.CashList.ListCount(), program->Bookings().size());
        EXPECT_EQ(QDir(desktop.Path("")).entryList(QDir::Files), QStringList("export.txt"));
        EXPECT_EQ(program->Integrity(), QStringList("ok"));
        ++counts[isWritten ? "written" : "refused"];
    });
}
