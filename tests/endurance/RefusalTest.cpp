#include "endurance/Endurance.h"
#include "endurance/Program.h"
#include "support/FullDisk.h"

#include <QDir>

/// Writes on a disk that is full at a random point.
class Refusal : public Endurance {
protected:
    QString Contents() { return program->Stored().join(u'\n') + QString::number(exported.size()); }

    FakeDesktop desktop;
    const QString root = desktop.Path({});
    const FolderItem databaseFile = App(desktop, UserLocale(QLocale())).DefaultDatabaseFile();
    QFile exported{root + "/export.txt"};
    std::optional<Program> program;
};

TEST_F(Refusal, IsReportedAndLeavesTheFilesUnchanged) {
    struct Step {
        QString message;
        std::function<void(Program &)> run;
    };
    desktop.fileToSave = FolderItem(exported.fileName());
    const Step steps[] = {
        {"",
         [&](auto &target) {
             target.Submit(QString::number(random()), "1.50", 1 + RandomBelow(500));
         }},
        {"DB Error: ", [&](auto &target) { target.Change(0, u"%1.50"_s.arg(random())); }},
        {"Die Datei ", [](auto &target) { target.window->MenuAction("export"); }},
        {"no message", [](auto &target) { target.Delete(0); }}};
    Run(60, [&] {
        static_cast<void>(databaseFile.Delete());
        program.emplace(desktop);
        program->Submit(QString::number(random()), "2.50");
        EXPECT_TRUE(exported.open(QIODevice::WriteOnly) && exported.write("before") > 0);
        exported.close();
        const QString before = Contents();
        const Step &step = steps[RandomBelow(4)];
        {
            // Existing bytes can be overwritten: the rollback journal or the database becomes too
            // long.
            const int bytes = RandomBelow(40'000);
            const FullDisk disk(bytes < 10'000 ? bytes / 10
                                               : QFile(databaseFile.Path()).size() + bytes / 2);
            program.emplace(desktop);
            step.run(*program);
        }
        const QString message = desktop.TakeMessages();
        EXPECT_FALSE(message.contains(u'|')) << message;
        const bool isWritten = Contents() != before;
        EXPECT_EQ(message.isEmpty(), isWritten || step.message == "no message");
        EXPECT_TRUE(message.isEmpty() || message.startsWith(step.message)) << message;
        EXPECT_EQ(program->window->journal.CashList.ListCount(), program->Stored().size());
        EXPECT_EQ(QDir(root).entryList(QDir::Files), QStringList("export.txt"));
        EXPECT_TRUE(program->IsIntact());
        ++counts[isWritten ? "written" : "refused"];
    });
}
