#include "endurance/Endurance.h"
#include "endurance/Program.h"
#include "support/FullDisk.h"

#include <QDir>

/// A disk that is full at some point.
class Refusal : public Endurance {
protected:
    QString Written() { return program->Stored().join(u'\n') + QString::number(exported.size()); }

    FakeDesktop desktop;
    const QString root = desktop.Path({});
    const FolderItem env = App(desktop, UserLocale(QLocale())).DefaultDatabaseFile();
    QFile exported{root + u"/export.txt"_s};
    std::optional<Program> program;
};

TEST_F(Refusal, IsToldAndLeavesWhatWasThere) {
    struct Step {
        QString message;
        std::function<void(Program &)> take;
    };
    desktop.fileToSave = FolderItem(exported.fileName());
    const Step steps[] = {{u""_s, [&](auto &at) { at.Submit(QString::number(random()), u"1.50"_s, 1 + Any(500)); }},
                          {u"DB Error: "_s, [&](auto &at) { at.Change(0, u"%1.50"_s.arg(random())); }},
                          {u"Die Datei "_s, [](auto &at) { at.window->MenuAction(u"export"_s); }},
                          {u"not told"_s, [](auto &at) { at.Delete(0); }}};
    Run(60, [&] {
        static_cast<void>(env.Delete());
        program.emplace(desktop);
        program->Submit(QString::number(random()), u"2.50"_s);
        EXPECT_TRUE(exported.open(QIODevice::WriteOnly) && exported.write("before") > 0);
        exported.close();
        const QString before = Written();
        const Step &step = steps[Any(4)];
        {
            // What is there can be written over: the journal is too long, or the book.
            const int bytes = Any(40'000);
            const FullDisk disk(bytes < 10'000 ? bytes / 10 : QFile(env.Path()).size() + bytes / 2);
            program.emplace(desktop);
            step.take(*program);
        }
        const QString message = desktop.TakeMessages();
        EXPECT_FALSE(message.contains(u'|')) << qPrintable(message);
        const bool took = Written() != before;
        EXPECT_EQ(message.isEmpty(), took || step.message == u"not told"_s);
        EXPECT_TRUE(message.isEmpty() || message.startsWith(step.message)) << qPrintable(message);
        EXPECT_EQ(program->window->journal.CashList.ListCount(), program->Stored().size());
        EXPECT_EQ(QDir(root).entryList(QDir::Files), QStringList(u"export.txt"_s));
        EXPECT_TRUE(program->IsSound());
        ++counts[took ? "written" : "refused"];
    });
}
