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
    enum Obstacle { FullDevice, LockedFolder, LockedFiles };

    Refusal() {
        // A small disk, which no other process sees.
        hasDevice = unshare(CLONE_NEWNS) == 0 &&
                    mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                    mount("none", qPrintable(root), "tmpfs", 0, "size=256k") == 0;
        std::cout << (hasDevice ? ""
                                : "Nothing can be mounted: a limit of size is the full disk.\n");
        EXPECT_TRUE(QFile::setPermissions(root, QFile::Permissions(0x7777)));
        // Who may write everywhere is nobody for the time.
        EXPECT_TRUE(user != 0 || seteuid(65534) == 0);
    }
    ~Refusal() override {
        EXPECT_EQ(seteuid(user), 0);
        EXPECT_TRUE(!hasDevice || umount2(qPrintable(root), MNT_DETACH) == 0);
    }

    void Raise(Obstacle obstacle) {
        const int bytes = Any(40'000);
        if (obstacle != FullDevice) {
            Permit(obstacle, QFile::ReadOwner | QFile::ExeOwner);
        } else if (hasDevice) {
            EXPECT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
            while (filler.size() < 1'000'000 && filler.write(QByteArray(4096, 'x')) > 0) {
            }
            filler.resize(std::max(filler.size() - bytes, qint64(0)));
        } else { // What is there can be written over: the journal is too long, or the book.
            limit.emplace(bytes < 10'000 ? bytes / 10 : QFile(book.Path()).size() + bytes / 2);
        }
    }
    void Lift(Obstacle obstacle) {
        limit.reset();
        filler.remove();
        Permit(obstacle, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    void Permit(Obstacle obstacle, QFile::Permissions permissions) {
        const bool folder = obstacle == LockedFolder;
        QFile::setPermissions(folder ? root : exported.fileName(), permissions);
        QFile::setPermissions((folder ? book.Parent() : book).Path(), permissions);
    }

    FakeDesktop desktop;
    const QString root = desktop.Path({});
    const FolderItem book = App(desktop, UserLocale(QLocale())).DefaultDatabaseFile();
    QFile exported{root + u"/export.txt"_s};
    const uid_t user = geteuid();
    bool hasDevice = false;
    QFile filler{root + u"/filler"_s};
    std::optional<FullDisk> limit;
};

TEST_F(Refusal, IsToldAndLeavesWhatWasThere) {
    desktop.fileToSave = FolderItem(exported.fileName());
    const auto written = [&](const Program &program) {
        EXPECT_TRUE(exported.open(QIODevice::ReadOnly));
        const QByteArray bytes = exported.readAll();
        exported.close();
        return program.Stored().join(u'\n') + QString::fromLatin1(bytes);
    };
    const std::pair<QString, std::function<void(Program &)>> steps[] = {
        {u""_s, [&](auto &at) { at.Submit(QString::number(random()), u"1.50"_s, 1 + Any(500)); }},
        {u"DB Error: "_s, [&](auto &at) { at.Change(0, u"%1.50"_s.arg(random())); }},
        {u"Die Datei "_s, [](auto &at) { at.window->MenuAction(u"export"_s); }},
        {u"not told"_s, [](auto &at) {
             at.window->journal.CashList.SetListIndex(0);
             at.window->MenuAction(u"delete"_s);
         }}};
    Run(60, [&] {
        static_cast<void>(book.Delete());
        Program later(desktop);
        later.Submit(QString::number(random()), u"2.50"_s);
        EXPECT_TRUE(exported.open(QIODevice::WriteOnly) && exported.write("before") > 0);
        exported.close();
        const QString before = written(later);
        const auto obstacle = Obstacle(Any(3));
        const auto &[prefix, step] = steps[Any(4)];
        Raise(obstacle);
        Program program(desktop);
        step(program);
        const QString message = desktop.TakeMessages();
        Lift(obstacle);
        const bool took = written(program) != before;
        EXPECT_EQ(message.isEmpty(), took || prefix == u"not told"_s);
        EXPECT_TRUE(message.isEmpty() || message.startsWith(prefix)) << qPrintable(message);
        EXPECT_FALSE(message.contains(u'|')) << qPrintable(message);
        EXPECT_EQ(program.window->journal.CashList.ListCount(), program.Stored().size());
        EXPECT_EQ(QDir(root).entryList(QDir::Files), QStringList(u"export.txt"_s));
        EXPECT_TRUE(program.IsSound());
        ++counts[took ? "written" : "refused"];
        step(later);
        EXPECT_NE(written(later), before);
        EXPECT_EQ(desktop.TakeMessages(), QString());
    });
}

TEST_F(Refusal, LeavesNoHalfBook) {
    Run(20, [&] {
        const auto obstacle = Obstacle(Any(2));
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
