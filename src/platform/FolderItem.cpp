#include "platform/FolderItem.h"

#include <QDir>
#include <QFileInfo>

FolderItem FolderItem::Child(const QString &name) const {
    return FolderItem(QDir(path_).filePath(name));
}

FolderItem FolderItem::Parent() const {
    return FolderItem(QFileInfo(path_).path());
}

bool FolderItem::Exists() const {
    return QFileInfo::exists(path_);
}

bool FolderItem::CreateAsFolder() const {
    const auto ownerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    return QDir().mkpath(Parent().Path()) && QDir().mkdir(path_, ownerOnly);
}

bool FolderItem::Delete() const {
    return QFile::remove(path_);
}
