#include "endurance/Endurance.h"
#include "endurance/Program.h"
#include "support/FullDisk.h"

#include <QDir>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A disk that is full at some point, and a folder and files that must not be written.
class Refusal : public Endurance {
protected:
    enum Obstacle { FullDevice, LockedFolder, LockedFiles };

    Refusal() {
        EXPECT_TRUE(QFile::setPermissions(root, QFile::Permissions(0x7777)));
        // Who may write everywhere is nobody for the time.
        EXPECT_TRUE(user != 0 || seteuid(65534) == 0);
    }
    ~Refusal() override { EXPECT_EQ(seteuid(user), 0); }

    /// Starts the program, and takes a step in it if it finds a book, while the obstacle is there.
    void Meet(Obstacle obstacle, const std::function<void(Program &)> &step) {
        {
            std::optional<FullDisk> full;
            if (obstacle == FullDevice) {
                // What is there can be written over: the journal is too long, or the book.
                const int bytes = Any(40'000);
                full.emplace(bytes < 10'000 ? bytes / 10 : QFile(book.Path()).size() + bytes / 2);
            } else {
                Permit(obstacle, QFile::ReadOwner | QFile::ExeOwner);
            }
            program.emplace(desktop);
            if (program->window) {
                step(*program);
            }
        }
        Permit(obstacle, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        message = desktop.TakeMessages();
        EXPECT_FALSE(message.contains(u'|')) << qPrintable(message);
    }
    void Permit(Obstacle obstacle, QFile::Permissions permissions) {
        const bool folder = obstacle == LockedFolder;
        QFile::setPermissions(folder ? root : exported.fileName(), permissions);
        QFile::setPermissions((folder ? book.Parent() : book).Path(), permissions);
    }
    /// All bookings, and the size of what was exported.
    QString Written() { return program->Stored().join(u'\n') + QString::number(exported.size()); }

    FakeDesktop desktop;
    const QString root = desktop.Path({});
    const FolderItem book = App(desktop, UserLocale(QLocale())).DefaultDatabaseFile();
    QFile exported{root + u"/export.txt"_s};
    const uid_t user = geteuid();
    std::optional<Program> program;
    QString message;
};

TEST_F(Refusal, IsToldAndLeavesWhatWasThere) {
    desktop.fileToSave = FolderItem(exported.fileName());
    const std::pair<QString, std::function<void(Program &)>> steps[] = {
        {u""_s, [&](auto &at) { at.Submit(QString::number(random()), u"1.50"_s, 1 + Any(500)); }},
        {u"DB Error: "_s, [&](auto &at) { at.Change(0, u"%1.50"_s.arg(random())); }},
        {u"Die Datei "_s, [](auto &at) { at.window->MenuAction(u"export"_s); }},
        {u"not told"_s, [](auto &at) { at.Delete(0); }}};
    Run(60, [&] {
        static_cast<void>(book.Delete());
        program.emplace(desktop);
        program->Submit(QString::number(random()), u"2.50"_s);
        EXPECT_TRUE(exported.open(QIODevice::WriteOnly) && exported.write("before") > 0);
        exported.close();
        const QString before = Written();
        const auto &[prefix, step] = steps[Any(4)];
        Meet(Obstacle(Any(3)), step);
        const bool took = Written() != before;
        EXPECT_EQ(message.isEmpty(), took || prefix == u"not told"_s);
        EXPECT_TRUE(message.isEmpty() || message.startsWith(prefix)) << qPrintable(message);
        EXPECT_EQ(program->window->journal.CashList.ListCount(), program->Stored().size());
        EXPECT_EQ(QDir(root).entryList(QDir::Files), QStringList(u"export.txt"_s));
        EXPECT_TRUE(program->IsSound());
        ++counts[took ? "written" : "refused"];
    });
}

TEST_F(Refusal, LeavesNoHalfBook) {
    Run(20, [&] {
        Meet(Obstacle(Any(2)), [](const Program &) {});
        const bool made = program->window.has_value();
        EXPECT_EQ(message.isEmpty(), made);
        ++counts[made ? "made" : "refused"];
        EXPECT_EQ(book.Exists(), made);
        program.emplace(desktop);
        EXPECT_TRUE(program->window && program->IsSound());
        EXPECT_TRUE(book.Delete());
    });
}

} // namespace
