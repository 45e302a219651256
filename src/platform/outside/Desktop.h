#pragma once

#include "platform/outside/FolderItem.h"
#include "platform/values/Date.h"

#include <QString>

#include <memory>
#include <optional>

class MenuItem;
class PrinterGraphics;

/// A file type of a file dialog: its display name, and its extension with the dot.
struct FileType {
    QString name;
    QString extensions;
};

/// The properties of a dialog to save a file; Desktop::ShowModal shows it.
struct SaveAsDialog {
    /// The folder that is shown first.
    FolderItem initialDirectory;
    /// The label of the file name field.
    QString promptText;
    QString suggestedFileName;
    FileType filter;
    QString title;
};

/// Interface to the desktop: clock, standard folders, dialogs and other programs. Every modal
/// dialog is opened through it.
class Desktop {
public:
    Desktop() = default;
    Q_DISABLE_COPY_MOVE(Desktop)
    virtual ~Desktop() = default;

    /// Returns the current local date and time.
    virtual Date Now() const = 0;
    /// Returns the user's folder for application data.
    virtual FolderItem ApplicationData() const = 0;
    /// Returns the user's desktop folder.
    virtual FolderItem DesktopFolder() const = 0;
    /// Returns the executable file of the program.
    virtual FolderItem ExecutableFile() const = 0;

    /// Shows a message with one button; returns when the user has closed it.
    virtual void MsgBox(const QString &message) = 0;
    /// Shows a dialog to open a file of any type. Returns nullopt if the user cancels.
    [[nodiscard]] virtual std::optional<FolderItem> GetOpenFolderItem() = 0;
    /// Shows a dialog to save a file. Returns nullopt if the user cancels.
    [[nodiscard]] virtual std::optional<FolderItem> ShowModal(const SaveAsDialog &dialog) = 0;
    /// Shows the print dialog for a document with this name. Returns null if the user cancels. If
    /// the print job writes to a file and that is the database file, it fails when it ends.
    [[nodiscard]] virtual std::unique_ptr<PrinterGraphics>
    OpenPrinterDialog(const QString &document, const std::optional<FolderItem> &databaseFile) = 0;
    /// Shows the submenu of the item as a context menu at the mouse position. Returns the index of
    /// the chosen item, nullopt if the user closes the menu.
    [[nodiscard]] virtual std::optional<int> PopUp(const MenuItem &base) = 0;
    /// Shows the name and version of the program.
    virtual void ShowAboutPanel() = 0;

    /// Opens a file in the associated program without waiting for it. Shows a message if no program
    /// can be started. Does nothing if the file is missing.
    virtual void Launch(const FolderItem &file) = 0;
    /// Opens an address in the user's web browser. Shows a message if no program can be started.
    virtual void ShowURL(const QString &address) = 0;
};
