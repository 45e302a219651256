#pragma once

#include "platform/outside/FolderItem.h"

#include <QSaveFile>

#include <optional>

/// Writes a file that is there as a whole or not at all: until Close succeeds, a file of that name
/// stays as it was. A failure on the way makes Close fail. Letting go without Close drops all.
class TextOutputStream {
public:
    /// Begins the file. The open book is refused.
    TextOutputStream(const FolderItem &file, const std::optional<FolderItem> &databaseFile);

    /// Adds the bytes as they are.
    void Write(const QByteArray &bytes);
    /// Puts the file in its place; false when that, or anything before, has failed.
    [[nodiscard]] bool Close();
    /// What has failed, in the user's language.
    QString ErrorMessage() const;

private:
    void Fail();

    QSaveFile file_;
    /// The first failure; the file's own text can be overwritten by what follows.
    std::optional<QString> failure_;
};
