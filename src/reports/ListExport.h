#pragma once

#include "platform/outside/FolderItem.h"

#include <optional>

class CellModel;
class Desktop;

namespace TLXModule {

/// Lets the user name a text file, and writes the list into it: the headings and one line per row,
/// semicolons between the cells, in code page 1252, lines ended by carriage return and line feed.
/// Nothing is quoted. A file that can't be written, such as the open book, is told to the user; one
/// that was there before then stays as it was.
void ExportCSV(Desktop &desktop, const CellModel &list,
               const std::optional<FolderItem> &databaseFile);

} // namespace TLXModule
