#include "platform/controls/PagePanel.h"

void PagePanel::SetValue(int page) {
    if (page == value_) {
        return;
    }
    value_ = page;
    Q_EMIT Updated();
}
