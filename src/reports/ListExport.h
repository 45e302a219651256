#pragma once

#include "platform/outside/FolderItem.h"

#include <optional>

class CellModel;
class Desktop;

namespace TLXModule {

/// Shows a file dialog and writes the list to the chosen text file: the headings and one line per
/// row, with cells separated by semicolons, in code page 1252, with CR LF line ends. Nothing is
/// quoted. Does nothing if the user cancels. If the file can't be written, for example because it
/// is the open database, shows a message and leaves an existing file unchanged.
void ExportCSV(Desktop &desktop, const CellModel &list,
               const std::optional<FolderItem> &databaseFile);

} // namespace TLXModule
