#include "platform/outside/FolderItem.h"

#include "support/GoogleTest.h"

#include <QDir>
#include <QTemporaryDir>

TEST(FolderItem, MovesWithoutReplacingAndDeletesByPrefix) {
    const QTemporaryDir folder;
    const FolderItem root(folder.path());
    for (const QString name : {"new", "old", ".a-1", ".a-2", "b.a-"}) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(name.toUtf8()) > 0);
    }
    ASSERT_TRUE(QFile::link(folder.filePath("nowhere"), folder.filePath("link")));
    ASSERT_TRUE(root.Child(".a-folder").Child("inner").CreateAsFolder());
    for (const QString target : {"old", "link", "no/folder"}) {
        EXPECT_FALSE(root.Child("new").MoveTo(root.Child(target))) << target;
    }
    EXPECT_EQ(QFileInfo(folder.filePath("old")).size(), 3);
    EXPECT_TRUE(root.Child("new").MoveTo(root.Child("moved.b")));
    // A folder cannot have a hard link.
    EXPECT_TRUE(root.Child(".a-folder").MoveTo(root.Child(".a-moved")));
    EXPECT_FALSE(root.Child(".a-moved").CreateAsFolder()) << "the folder exists";
    root.DeleteFiles(".a-");
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    EXPECT_EQ(QDir(folder.path()).entryList(all),
              QStringList({".a-moved", "b.a-", "link", "moved.b", "old"}));
}
