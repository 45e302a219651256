#include "platform/controls/PopupMenu.h"

void PopupMenu::SetListIndex(int index) {
    index = ValidIndex(index);
    if (index == listIndex_) {
        return;
    }
    listIndex_ = index;
    Q_EMIT Updated();
    Q_EMIT Change();
}
