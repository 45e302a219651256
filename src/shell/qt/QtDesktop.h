#pragma once

#include "platform/Desktop.h"

/// The user's real desktop.
class QtDesktop : public Desktop {
public:
    Date Now() const override;
    FolderItem ApplicationData() const override;
    FolderItem DesktopFolder() const override;
    FolderItem ExecutableFile() const override;
    void MsgBox(const QString &message) override;
    std::optional<FolderItem> GetOpenFolderItem() override;
    std::optional<FolderItem> ShowModal(const SaveAsDialog &dialog) override;
    std::unique_ptr<PrinterGraphics> OpenPrinterDialog(const QString &document) override;
    std::optional<int> PopUp(const MenuItem &base) override;
    void ShowAboutPanel() override;
    void Launch(const FolderItem &file) override;
    void ShowURL(const QString &address) override;
};
