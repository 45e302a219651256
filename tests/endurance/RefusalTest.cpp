#include "endurance/Endurance.h"
#include "endurance/Program.h"
#include "support/FullDisk.h"

#include <QDir>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A disk that is full at some point, and a folder and files that must not be written.
class Refusal : public Endurance {
protected:
    enum Obstacle { FullDevice, SizeLimit, LockedFolder, LockedFiles };

    Refusal() {
        // A small disk, which no other process sees.
        hasDevice = unshare(CLONE_NEWNS) == 0 &&
                    mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                    mount("none", qPrintable(root), "tmpfs", 0, "size=256k") == 0;
        std::cout << (hasDevice ? "" : "No full device: nothing can be mounted here.\n");
        EXPECT_TRUE(QFile::setPermissions(root, QFile::Permissions(0x7777)));
        // Who may write everywhere is nobody for the time.
        EXPECT_TRUE(user != 0 || seteuid(65534) == 0);
        desktop.fileToSave = FolderItem(root + u"/export.txt"_s);
    }
    ~Refusal() override {
        EXPECT_EQ(seteuid(user), 0);
        if (hasDevice) {
            umount2(qPrintable(root), MNT_DETACH);
        }
    }

    void Raise(Obstacle obstacle) {
        const int bytes = Any(40'000);
        if (obstacle == FullDevice && hasDevice) {
            EXPECT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
            while (filler.write(QByteArray(4096, 'x')) > 0) {
            }
            filler.resize(std::max(filler.size() - bytes, qint64(0)));
        } else if (obstacle < LockedFolder) {
            // What is there can be written over: the journal is too long, or the book.
            limit.emplace(bytes < 10'000 ? bytes / 10 : QFile(book.Path()).size() + bytes / 2);
        } else {
            Permit(obstacle, {});
        }
    }
    void Lift(Obstacle obstacle) {
        limit.reset();
        filler.remove();
        Permit(obstacle, QFile::WriteOwner);
    }
    void Permit(Obstacle obstacle, QFile::Permissions write) {
        const FolderItem &exported = *desktop.fileToSave;
        const bool folder = obstacle == LockedFolder;
        for (const FolderItem &item :
             {folder ? exported.Parent() : exported, folder ? book.Parent() : book}) {
            QFile::setPermissions(item.Path(), write | QFile::ReadOwner | QFile::ExeOwner);
        }
    }

    FakeDesktop desktop;
    const QString root = desktop.Path({});
    const FolderItem book = App(desktop, UserLocale(QLocale())).DefaultDatabaseFile();
    const uid_t user = geteuid();
    bool hasDevice = false;
    QFile filler{root + u"/filler"_s};
    std::optional<FullDisk> limit;
};

TEST_F(Refusal, IsToldAndLeavesWhatWasThere) {
    QFile exported(desktop.fileToSave->Path());
    const auto written = [&](const Program &program) {
        EXPECT_TRUE(exported.open(QIODevice::ReadOnly));
        const QByteArray bytes = exported.readAll();
        exported.close();
        return program.Stored().join(u'\n') + QString::fromLatin1(bytes);
    };
    const std::pair<QString, std::function<void(Program &)>> steps[] = {
        {u""_s, [&](auto &at) { at.Submit(QString::number(random()), u"1.50"_s, 1 + Any(500)); }},
        {u"DB Error: "_s, [&](auto &at) { at.Change(u"%1.50"_s.arg(random())); }},
        {u"Die Datei "_s, [](auto &at) { at.window->MenuAction(u"export"_s); }},
        {u"not told"_s, [](auto &at) { at.window->MenuAction(u"delete"_s); }}};
    Run(60, [&] {
        Program at(desktop);
        at.Submit(QString::number(random()), u"2.50"_s);
        EXPECT_TRUE(exported.open(QIODevice::WriteOnly) && exported.write("before") > 0);
        exported.close();
        const QString before = written(at);
        const auto obstacle = Obstacle(Any(4));
        const auto &[prefix, step] = steps[Any(4)];
        Raise(obstacle);
        Program under(desktop);
        under.window->journal.CashList.SetListIndex(0);
        step(under);
        const QString message = desktop.TakeMessages();
        Lift(obstacle);
        const bool took = written(under) != before;
        EXPECT_EQ(message.isEmpty(), took || prefix == u"not told"_s) << qPrintable(message);
        EXPECT_TRUE(message.isEmpty() || message.startsWith(prefix)) << qPrintable(message);
        EXPECT_FALSE(message.contains(u'|')) << qPrintable(message);
        EXPECT_EQ(under.window->journal.CashList.ListCount(), under.Stored().size());
        EXPECT_EQ(QDir(root).entryList(QDir::Files), QStringList(u"export.txt"_s));
        EXPECT_TRUE(under.IsSound());
        ++counts[took ? "written" : "refused"];
        at.window->journal.CashList.SetListIndex(0);
        step(at);
        EXPECT_NE(written(at), before);
        EXPECT_EQ(desktop.TakeMessages(), QString());
    });
}

TEST_F(Refusal, LeavesNoHalfBook) {
    Run(20, [&] {
        const auto obstacle = Obstacle(Any(3));
        Raise(obstacle);
        Program program(desktop);
        const QString message = desktop.TakeMessages();
        Lift(obstacle);
        EXPECT_EQ(message.isEmpty(), program.window.has_value());
        EXPECT_FALSE(message.contains(u'|')) << qPrintable(message);
        ++counts[program.window ? "made" : "refused"];
        if (!program.window) {
            program.welcome.Event_Close();
            EXPECT_FALSE(book.Exists());
            program.welcome.SaveButton.Press();
        }
        EXPECT_TRUE(program.window && program.IsSound());
        EXPECT_TRUE(book.Delete());
    });
}

} // namespace
