#pragma once

#include <QString>

/// A path to a file or folder that may exist or not.
class FolderItem {
public:
    explicit FolderItem(const QString &path) : path_(path) {}

    QString Path() const { return path_; }
    FolderItem Child(const QString &name) const;
    FolderItem Parent() const;
    bool Exists() const;
    /// Whether both lead to the same file, which is there.
    bool IsSameFileAs(const FolderItem &other) const;
    /// Makes the folder, and those above it that are missing, for their owner alone, whatever the
    /// system's habit is; false when that fails or something else has the name.
    [[nodiscard]] bool CreateAsFolder() const;
    /// Removes the file; false when that fails.
    [[nodiscard]] bool Delete() const;
    /// Removes the files in this folder whose names begin so. What can't be removed stays.
    void DeleteFiles(const QString &beginning) const;
    /// Gives the file another place on the same disk; false, and nothing has changed, when that
    /// fails or anything stands there, a link to nowhere included.
    [[nodiscard]] bool MoveTo(const FolderItem &place) const;

private:
    QString path_;
};
