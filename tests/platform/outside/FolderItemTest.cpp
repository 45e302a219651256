#include "platform/outside/FolderItem.h"

#include "support/GoogleTest.h"

#include <QFile>
#include <QTemporaryDir>

TEST(FolderItem, MovesWithoutReplacingAndDeletesByPrefix) {
    const QTemporaryDir folder;
    const FolderItem root(folder.path());
    const FolderItem file = root.Child("new");
    const FolderItem moved = root.Child(".moved");
    EXPECT_TRUE(QFile(file.Path()).open(QIODevice::WriteOnly));
    EXPECT_TRUE(QFile::link("nowhere", root.Child("link").Path()));
    EXPECT_FALSE(file.MoveTo(root.Child("link")));
    EXPECT_TRUE(file.MoveTo(moved));
    EXPECT_FALSE(file.Exists());
    EXPECT_TRUE(root.Child("a").CreateAsFolder());
    EXPECT_TRUE(root.Child("a").MoveTo(file)) << "a folder, which cannot have a hard link";
    EXPECT_FALSE(file.CreateAsFolder()) << "the folder exists";
    root.DeleteFiles("moved");
    EXPECT_TRUE(moved.Exists());
    root.DeleteFiles(".m");
    EXPECT_FALSE(moved.Exists());
}
