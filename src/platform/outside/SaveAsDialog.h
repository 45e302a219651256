#pragma once

#include "platform/outside/FolderItem.h"

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
