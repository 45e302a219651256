#include "core/TLXLists.h"

#include "platform/controls/SelectionControl.h"
#include "platform/values/Text.h"

namespace TLXModule {

int GetRowTag(const SelectionControl &list, const QString &tag) {
    for (int row = 0; row < list.ListCount(); ++row) {
        if (SameText(list.RowTag(row), tag)) {
            return row;
        }
    }
    return -1;
}

int FindText(const SelectionControl &list, const QString &text) {
    for (int row = 0; row < list.ListCount(); ++row) {
        if (SameText(list.List(row), text)) {
            return row;
        }
    }
    return -1;
}

int IndexOf(SelectionControl &list, const QString &text) {
    const int row = FindText(list, text);
    if (row >= 0) {
        list.SetListIndex(row);
    }
    return row;
}

} // namespace TLXModule
