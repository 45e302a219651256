#pragma once

#include "platform/outside/FolderItem.h"

#include <QSaveFile>

#include <optional>

/// Writes a file atomically: an existing file of that name is unchanged until Close succeeds. Close
/// fails if any write has failed. The destructor discards the data if Close was not called.
class TextOutputStream {
public:
    /// Opens the file for writing. Fails if it is the database file.
    TextOutputStream(const FolderItem &file, const std::optional<FolderItem> &databaseFile);

    /// Appends the bytes without conversion.
    void Write(const QByteArray &bytes);
    /// Commits the file. Returns false if that or any earlier operation has failed.
    [[nodiscard]] bool Close();
    /// Returns a message about the failure, in German.
    QString ErrorMessage() const;

private:
    void Fail();

    QSaveFile file_;
    /// The first error; later operations can overwrite the error text of file_.
    std::optional<QString> failure_;
};
