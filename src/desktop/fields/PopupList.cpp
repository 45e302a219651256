#include "desktop/fields/PopupList.h"

#include <QAbstractItemView>
#include <QStyle>

void FitToLongestRow(QAbstractItemView &list) {
    const int bar = list.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &list);
    list.setMinimumWidth(list.sizeHintForColumn(0) + bar + 2 * list.frameWidth());
}
