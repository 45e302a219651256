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
    /// Makes the folder for its owner alone; false when that fails or something else has the name.
    bool CreateAsFolder() const;
    /// Removes the file; false when that fails.
    bool Delete() const;

private:
    QString path_;
};
