#pragma once

#include "platform/outside/FolderItem.h"

/// A kind of file that a dialog offers: its name for the user, and its ending with the dot.
struct FileType {
    QString name;
    QString extensions;
};

/// What a dialog for a new file shows; Desktop::ShowModal shows it.
struct SaveAsDialog {
    /// Where it begins.
    FolderItem initialDirectory;
    /// Stands before the field for the name.
    QString promptText;
    QString suggestedFileName;
    FileType filter;
    QString title;
};
