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

void FolderItem::DeleteFiles(const QString &beginning) const {
    const QDir folder(path_);
    for (const QString &name : folder.entryList({beginning + u'*'}, QDir::Files | QDir::Hidden)) {
        // Nobody has to hear of it, and nothing is worse than before.
        static_cast<void>(QFile::remove(folder.filePath(name)));
    }
}

bool FolderItem::MoveTo(const FolderItem &place) const {
    const std::filesystem::path from = QFileInfo(path_).filesystemFilePath();
    const std::filesystem::path to = QFileInfo(place.path_).filesystemFilePath();
    std::error_code error;
    // A second name is never given over one that is there; a rename would replace the file.
    std::filesystem::create_hard_link(from, to, error);
    if (!error) {
        // With two names the file is in its place no less.
        static_cast<void>(Delete());
        return true;
    }
    // Some disks know one name alone for a file.
    if (std::filesystem::exists(std::filesystem::symlink_status(to, error))) {
        return false;
    }
    std::filesystem::rename(from, to, error);
    return !error;
}
