#pragma once

#include "platform/Date.h"
#include "platform/FolderItem.h"

#include <QString>

#include <optional>

/// What the program asks of the world outside its windows. Everything modal goes through here.
class Desktop {
public:
    Desktop() = default;
    Desktop(const Desktop &) = delete;
    Desktop &operator=(const Desktop &) = delete;
    virtual ~Desktop() = default;

    /// The present moment.
    virtual Date Now() const = 0;
    /// The user's folder for application data.
    virtual FolderItem ApplicationData() const = 0;

    /// A message with one button; returns when the user has closed it.
    virtual void MsgBox(const QString &message) = 0;
    /// Asks for a file to open, of any type; nothing when the user cancels.
    virtual std::optional<FolderItem> GetOpenFolderItem() = 0;
};
