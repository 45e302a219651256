#include "platform/outside/FolderItem.h"

#include "support/GoogleTest.h"

#include <QDir>
#include <QTemporaryDir>

TEST(FolderItem, MovesWithoutReplacingAndDeletesByPrefix) {
    const QTemporaryDir folder;
    const FolderItem root(folder.path());
    for (const auto &name : {u"new"_s, u"old"_s, u".a-1"_s, u".a-2"_s, u"b.a-"_s}) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(name.toUtf8()) > 0);
    }
    ASSERT_TRUE(QFile::link(folder.filePath(u"nowhere"_s), folder.filePath(u"link"_s)));
    ASSERT_TRUE(root.Child(u".a-folder"_s).Child(u"inner"_s).CreateAsFolder());
    for (const auto &target : {u"old"_s, u"link"_s, u"no/folder"_s}) {
        EXPECT_FALSE(root.Child(u"new"_s).MoveTo(root.Child(target))) << qPrintable(target);
    }
    EXPECT_EQ(QFileInfo(folder.filePath(u"old"_s)).size(), 3);
    EXPECT_TRUE(root.Child(u"new"_s).MoveTo(root.Child(u"moved.b"_s)));
    // A folder cannot have a hard link.
    EXPECT_TRUE(root.Child(u".a-folder"_s).MoveTo(root.Child(u".a-moved"_s)));
    EXPECT_FALSE(root.Child(u".a-moved"_s).CreateAsFolder()) << "the folder exists";
    root.DeleteFiles(u".a-"_s);
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    EXPECT_EQ(QDir(folder.path()).entryList(all),
              QStringList({u".a-moved"_s, u"b.a-"_s, u"link"_s, u"moved.b"_s, u"old"_s}));
}
