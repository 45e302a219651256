#pragma once

#include "platform/Desktop.h"

/// The user's real desktop.
class QtDesktop : public Desktop {
public:
    Date Now() const override;
    FolderItem ApplicationData() const override;
    void MsgBox(const QString &message) override;
    std::optional<FolderItem> GetOpenFolderItem() override;
};
