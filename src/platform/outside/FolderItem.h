#pragma once

#include <QString>

/// The path of a file or folder, which need not exist.
class FolderItem {
public:
    explicit FolderItem(const QString &path) : path_(path) {}

    QString Path() const { return path_; }
    FolderItem Child(const QString &name) const;
    FolderItem Parent() const;
    bool Exists() const;
    /// Returns whether both paths refer to the same existing file.
    bool IsSameFileAs(const FolderItem &other) const;
    /// Creates the folder and all missing parent folders with permissions for their owner only,
    /// independent of the umask. Returns false if that fails or the path already exists.
    [[nodiscard]] bool CreateAsFolder() const;
    /// Removes the file. Returns false on failure.
    [[nodiscard]] bool Delete() const;
    /// Removes the files in this folder whose names begin with the prefix. Failures are ignored.
    void DeleteFiles(const QString &prefix) const;
    /// Moves the file within its file system. Returns false and changes nothing if that fails or if
    /// the target exists, even as a dangling symbolic link.
    [[nodiscard]] bool MoveTo(const FolderItem &target) const;

private:
    QString path_;
};
