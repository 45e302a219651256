#include "platform/outside/FolderItem.h"

#include <QDir>
#include <QFileInfo>

#include <filesystem>

using namespace Qt::StringLiterals;

FolderItem FolderItem::Child(const QString &name) const {
    return FolderItem(QDir(path_).filePath(name));
}

FolderItem FolderItem::Parent() const {
    return FolderItem(QFileInfo(path_).path());
}

bool FolderItem::Exists() const {
    return QFileInfo::exists(path_);
}

bool FolderItem::IsSameFileAs(const FolderItem &other) const {
    const QString path = QFileInfo(path_).canonicalFilePath();
    return !path.isEmpty() && path == QFileInfo(other.path_).canonicalFilePath();
}

bool FolderItem::CreateAsFolder() const {
    const auto ownerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    return (Parent().Exists() || Parent().CreateAsFolder()) && QDir().mkdir(path_, ownerOnly) &&
           QFile::setPermissions(path_, ownerOnly);
}

bool FolderItem::Delete() const {
    return QFile::remove(path_);
}

void FolderItem::DeleteFiles(const QString &prefix) const {
    const QDir folder(path_);
    for (const QString &name : folder.entryList({prefix + u'*'}, QDir::Files | QDir::Hidden)) {
        // A failure is ignored: the file remains as it was.
        static_cast<void>(QFile::remove(folder.filePath(name)));
    }
}

bool FolderItem::MoveTo(const FolderItem &target) const {
    const std::filesystem::path from = QFileInfo(path_).filesystemFilePath();
    const std::filesystem::path to = QFileInfo(target.path_).filesystemFilePath();
    std::error_code error;
    // create_hard_link() fails if the target exists, whereas rename() would replace it.
    std::filesystem::create_hard_link(from, to, error);
    if (!error) {
        // The move succeeds even if the old name can't be removed.
        static_cast<void>(Delete());
        return true;
    }
    // Some file systems do not support hard links: fall back to rename().
    if (std::filesystem::exists(std::filesystem::symlink_status(to, error))) {
        return false;
    }
    std::filesystem::rename(from, to, error);
    return !error;
}
