#pragma once

#include <QString>

class SelectionControl;

/// The shared functions that know lists. Texts are compared without regard to case.
namespace TLXModule {

/// The index of the first row with the tag, -1 if there is none. Selects nothing.
int GetRowTag(const SelectionControl &list, const QString &tag);
/// The index of the first row with the text, -1 if there is none. Selects nothing.
int FindText(const SelectionControl &list, const QString &text);
/// The index of the first row with the text, which it selects; -1 and no change if there is none.
int IndexOf(SelectionControl &list, const QString &text);

} // namespace TLXModule
